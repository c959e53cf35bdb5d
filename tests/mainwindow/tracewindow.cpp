// The window of the tests of the trace.
#include "tracewindow.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "waiting.h"

#include <QPushButton>
#include <QtTest>

namespace {

constexpr int aDay = 24 * 3600 * 1000; // milliseconds
constexpr int patience = 20000;        // milliseconds

} // namespace

TraceWindow::TraceWindow() : sandbox(new Sandbox), session(new WindowSession)
{
    if (!session->load())
        qFatal("the page has not been loaded");
    setInterval(aDay);
}

PageProbe& TraceWindow::page()
{
    return session->page();
}

QPushButton* TraceWindow::traceButton()
{
    return session->find<QPushButton>("pbTraceAcft");
}

QPushButton* TraceWindow::centreButton()
{
    return session->find<QPushButton>("pbCenterAcft");
}

void TraceWindow::setInterval(int milliseconds)
{
    CNavGlobalVar::instance()->traceInterval = milliseconds;
}

QStringList TraceWindow::clickTrace()
{
    page().clear();
    traceButton()->click();
    return page().calls();
}

QStringList TraceWindow::tick()
{
    page().clear();
    if (!QMetaObject::invokeMethod(&session->window(), "sTraceAircraft", Qt::DirectConnection))
        return {"the window has no such slot"};
    return page().calls();
}

bool TraceWindow::markerComesTo(const QString& place, const QString& heading)
{
    const QString call = QString("setAcftMrkr(LatLng(%1),%2)").arg(place, heading);
    return waitUntil([this, call] { return page().calls("setAcftMrkr").contains(call); }, patience);
}

QString TraceWindow::mapCentre()
{
    return page().evaluate("map.getCenter().lat() + ' ' + map.getCenter().lng()").toString();
}
