// Wraps the page's functions to record their calls, and sends mouse events to the view.
#include "pageprobe.h"

#include "waiting.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTextEdit>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>
#include <QWheelEvent>
#include <QtTest>

#include <cmath>

namespace {

/// Runs in the page. Functions are reached by their names through an indirect eval, so that it does not matter how the
/// page declares them.
const char recorder[] = R"js(
(function () {
    'use strict';
    var get = eval;
    var lists = ['listApt', 'listVOR', 'listNDBRte', 'listNDBTerm', 'listWptRte', 'listWptTerm', 'listWptVfr'];
    var managers = ['ArptMgr', 'VORMgr', 'NDBRteMgr', 'NDBTermMgr', 'WPTRteMgr', 'WPTTermMgr', 'WPTVfrMgr'];
    var functions = ['addAPTMarker', 'addVORMarker', 'addNDBMarker', 'addWPTMarker', 'pushAPT', 'addNavMgr', 'addWptMgr',
        'addVORMarker2', 'addNDBMarker2', 'addWPTMarker2', 'delNavaid', 'delWaypoint', 'showATS', 'addATS', 'addToATS',
        'clearRunway', 'drawRwy', 'clearFP', 'addPointToFp', 'pushFP', 'clearSS', 'addPointToSS', 'addSitMarker',
        'eraseAcftMrkr', 'addAcftMrkr', 'setAcftMrkr'];
    var calls = [];

    function valueOf(name) {
        try { return get('typeof ' + name + " === 'undefined' ? undefined : " + name); } catch (error) { return undefined; }
    }
    function written(value) {
        if (typeof value === 'string')
            return '"' + value + '"';
        if (value && typeof value.lat === 'function' && typeof value.lng === 'function')
            return 'LatLng(' + value.lat() + ',' + value.lng() + ')';
        if (Array.isArray(value)) {
            var known = lists.filter(function (name) { return valueOf(name) === value; });
            return known.length ? known[0] : '[' + value.map(written).join(',') + ']';
        }
        return String(value);
    }
    function wrapped(name, original) {
        if (original.zephanProbe)
            return original;
        var wrapper = function () {
            calls.push(name + '(' + Array.prototype.map.call(arguments, written).join(',') + ')');
            var result = original.apply(this, arguments);
            wrapMethods();
            return result;
        };
        wrapper.zephanProbe = true;
        return wrapper;
    }
    function wrapMethod(owner, name) {
        var object = valueOf(owner);
        if (object && typeof object[name] === 'function')
            object[name] = wrapped(owner + '.' + name, object[name]);
    }
    // The managers are made by the page on the way, the map when its script service is ready.
    function wrapMethods() {
        managers.forEach(function (manager) {
            wrapMethod(manager, 'addMarkers');
            wrapMethod(manager, 'clearMarkers');
        });
        wrapMethod('map', 'setCenter');
        wrapMethod('map', 'setZoom');
    }
    function wrapAll() {
        functions.forEach(function (name) {
            var original = valueOf(name);
            if (typeof original === 'function' && !original.zephanProbe) {
                window.zephanProbeWrapper = wrapped(name, original);
                get(name + ' = window.zephanProbeWrapper');
            }
        });
        wrapMethods();
    }

    window.zephanProbe = {
        calls: function () { return calls; },
        clear: function () { calls.length = 0; },
        wrapAll: wrapAll
    };
    document.addEventListener('DOMContentLoaded', wrapAll);
    window.addEventListener('load', wrapAll);
})();
)js";

QString functionOf(const QString& call)
{
    return call.section('(', 0, 0);
}

/// World pixels of the web map's projection at zoom 0, where the world is 256 pixels wide.
QPointF worldPoint(double latitude, double longitude)
{
    const double pi = std::acos(-1.0);
    const double sine = std::sin(latitude * pi / 180.0);
    return {256.0 * (0.5 + longitude / 360.0), 256.0 * (0.5 - std::log((1.0 + sine) / (1.0 - sine)) / (4.0 * pi))};
}

void sendMouse(QWebView* view, QEvent::Type type, const QPoint& point, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, point, view->mapToGlobal(point), button, held, Qt::NoModifier);
    QApplication::sendEvent(view, &event);
}

} // namespace

PageProbe::PageProbe(QWidget* windowWidget) : window(windowWidget), view(windowWidget->findChild<QWebView*>("map"))
{
    if (!view)
        qFatal("probe: the window has no view \"map\"");
    connect(view->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this, &PageProbe::installOnNewPage);
}

void PageProbe::installOnNewPage()
{
    view->page()->mainFrame()->evaluateJavaScript(QString::fromLatin1(recorder));
}

bool PageProbe::waitUntilLoaded(int timeout)
{
    const auto* debugText = window->findChild<QTextEdit*>("debugText");
    const QString last = QCoreApplication::translate("MainWindow", "Chargement terminé");
    const bool loaded = waitUntil([debugText, last] { return debugText->toPlainText().contains(last); }, timeout);
    // A probe made after the load starts to record here.
    if (!evaluate("typeof zephanProbe").toString().startsWith("object"))
        installOnNewPage();
    evaluate("zephanProbe.wrapAll()");
    return loaded;
}

QStringList PageProbe::calls()
{
    return evaluate("zephanProbe.calls()").toStringList();
}

QStringList PageProbe::calls(const QString& function)
{
    QStringList found;
    for (const QString& call : calls()) {
        if (functionOf(call) == function)
            found << call;
    }
    return found;
}

void PageProbe::clear()
{
    evaluate("zephanProbe.clear()");
}

QVariant PageProbe::evaluate(const QString& script)
{
    return view->page()->mainFrame()->evaluateJavaScript(script);
}

QStringList PageProbe::titles(const QString& list)
{
    return evaluate(list + ".map(function (marker) { return marker.title; })").toStringList();
}

QPoint PageProbe::pointOf(double latitude, double longitude)
{
    const QPointF centre =
        worldPoint(evaluate("map.getCenter().lat()").toDouble(), evaluate("map.getCenter().lng()").toDouble());
    const QPointF offset =
        (worldPoint(latitude, longitude) - centre) * std::pow(2.0, evaluate("map.getZoom()").toDouble());
    return QPoint(view->width() / 2, view->height() / 2) + offset.toPoint();
}

void PageProbe::click(const QPoint& point)
{
    sendMouse(view, QEvent::MouseMove, point, Qt::NoButton, Qt::NoButton);
    sendMouse(view, QEvent::MouseButtonPress, point, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
}

void PageProbe::moveTo(const QPoint& point)
{
    sendMouse(view, QEvent::MouseMove, point, Qt::NoButton, Qt::NoButton);
}

void PageProbe::doubleClick(const QPoint& point)
{
    click(point);
    sendMouse(view, QEvent::MouseButtonDblClick, point, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, point, Qt::LeftButton, Qt::NoButton);
}

void PageProbe::drag(const QPoint& from, const QPoint& to)
{
    sendMouse(view, QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    sendMouse(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    sendMouse(view, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

void PageProbe::wheel(const QPoint& point, int delta)
{
    sendMouse(view, QEvent::MouseMove, point, Qt::NoButton, Qt::NoButton);
    QWheelEvent event(point, view->mapToGlobal(point), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view, &event);
}

void PageProbe::contextMenu(const QPoint& point)
{
    sendMouse(view, QEvent::MouseMove, point, Qt::NoButton, Qt::NoButton);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->mapToGlobal(point));
    QApplication::sendEvent(view, &event);
}

QStringList PageProbe::menuEntries()
{
    return evaluate("Array.from(document.querySelectorAll('.menu:not([hidden]) .menu-label')).map(e => e.textContent)")
        .toStringList();
}

bool PageProbe::chooseEntry(const QString& text)
{
    const int index = menuEntries().lastIndexOf(text);
    if (index < 0)
        return false;
    const QVariantList place =
        evaluate(QString("var box = document.querySelectorAll('.menu:not([hidden]) .menu-entry')[%1]"
                         ".getBoundingClientRect(); [box.left + 10, box.top + box.height / 2]")
                     .arg(index))
            .toList();
    click(QPoint(place.value(0).toInt(), place.value(1).toInt()));
    return true;
}

QString PageProbe::popupText()
{
    return evaluate("var popup = document.querySelector('.popup-text'); popup ? popup.innerText : ''").toString();
}
