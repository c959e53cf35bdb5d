// The probe records calls on a page, also on one that declares its functions in its own way.
#include "pageprobe.h"

#include <QTemporaryDir>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QWebFrame>
#include <QWebView>
#include <QtTest>

namespace {

const char page[] = R"html(<html><body><script>
function LatLng(a, b) { this.lat = function () { return a; }; this.lng = function () { return b; }; }
var google = {maps: {LatLng: LatLng}};
var events = [];
var map = {
    centre: new LatLng(0, 0), zoom: 3,
    getCenter: function () { return this.centre; }, setCenter: function (c) { this.centre = c; },
    getZoom: function () { return this.zoom; }, setZoom: function (z) { this.zoom = z; }
};
let listVOR = [];
var VORMgr;
let addNavMgr = function () { VORMgr = {addMarkers: function (list) { this.n = list.length; }, clearMarkers: function () {}}; };
function addVORMarker(position, title, type, html) { listVOR.push({title: title}); }
['mousedown', 'mouseup', 'contextmenu', 'wheel'].forEach(function (name) {
    document.addEventListener(name, function (event) {
        events.push(name + ' ' + event.button + ' ' + event.clientX + ' ' + event.clientY);
        event.preventDefault();
    });
});
</script></body></html>)html";

/// The part of the window that the probe needs.
struct Window : QWidget
{
    Window() : view(new QWebView(this)), debugText(new QTextEdit(this))
    {
        view->setObjectName("map");
        view->setGeometry(0, 0, 400, 300);
        debugText->setObjectName("debugText");
        connect(view, &QWebView::loadFinished, this, [this] {
            view->page()->mainFrame()->evaluateJavaScript(
                "addVORMarker(new google.maps.LatLng(48.65,-1.98),\"RBT-RBT\",6,"
                "\"<b>\");addNavMgr();VORMgr.addMarkers(listVOR)");
            debugText->append("Chargement terminé");
        });
    }
    QWebView* view;
    QTextEdit* debugText;
};

} // namespace

class TestPageProbe : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window.reset(new Window);
        probe.reset(new PageProbe(window.data()));
        window->resize(400, 300);
        window->show();
        window->view->setHtml(page);
        QVERIFY(probe->waitUntilLoaded());
    }

    void recordsTheFeedOfTheLoad()
    {
        QCOMPARE(probe->calls(), (QStringList{"addVORMarker(LatLng(48.65,-1.98),\"RBT-RBT\",6,\"<b>\")", "addNavMgr()",
                                              "VORMgr.addMarkers(listVOR)"}));
        QCOMPARE(probe->titles("listVOR"), QStringList{"RBT-RBT"});
        QCOMPARE(probe->evaluate("VORMgr.n").toInt(), 1);
    }

    void recordsLaterCallsByFunction()
    {
        probe->clear();
        QCOMPARE(probe->calls(), QStringList());
        probe->evaluate("map.setZoom(7);VORMgr.clearMarkers();map.setCenter(new google.maps.LatLng(1,2))");
        QCOMPARE(probe->calls("map.setCenter"), QStringList{"map.setCenter(LatLng(1,2))"});
        QCOMPARE(probe->calls().size(), 3);
        QCOMPARE(probe->evaluate("map.getZoom()").toInt(), 7);
    }

    void aMissingFunctionIsNotRecorded()
    {
        probe->clear();
        probe->evaluate("pushAPT()");
        QCOMPARE(probe->calls(), QStringList());
    }

    void timesOutWithoutALoad()
    {
        window->debugText->setPlainText("autre");
        QVERIFY(!probe->waitUntilLoaded(50));
    }

    void theMouseReachesThePage()
    {
        probe->click({10, 20});
        probe->contextMenu({30, 40});
        QCOMPARE(probe->evaluate("events").toStringList(),
                 (QStringList{"mousedown 0 10 20", "mouseup 0 10 20", "contextmenu 2 30 40"}));
        probe->evaluate("events.length = 0");
        probe->drag({10, 20}, {50, 60});
        QCOMPARE(probe->evaluate("events").toStringList(), (QStringList{"mousedown 0 10 20", "mouseup 0 50 60"}));
        probe->evaluate("events.length = 0");
        probe->wheel({11, 21}, 120);
        QCOMPARE(probe->evaluate("events.length").toInt(), 1);
    }

    void findsThePointOfAPosition()
    {
        probe->evaluate("map.setCenter(new google.maps.LatLng(0,0));map.setZoom(3)");
        QCOMPARE(probe->pointOf(0, 0), QPoint(200, 150));
        QCOMPARE(probe->pointOf(0, 9), QPoint(251, 150));
        QCOMPARE(probe->pointOf(-85.0511287798, 0), QPoint(200, 1174));
    }

private:
    QScopedPointer<Window> window;
    QScopedPointer<PageProbe> probe;
};

QTEST_MAIN(TestPageProbe)
#include "tst_pageprobe.moc"
