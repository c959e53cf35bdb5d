// An outside map service: taken when it answers, given up when it does not, and the feed is lost in no case.
#include "pagecopy.h"
#include "pagewindow.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

/// A service on this machine: answers every request with one text, or takes it and says nothing.
class Service : public QTcpServer
{
public:
    explicit Service(const QByteArray& answer) : text(answer)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                // The engine looks ahead and, without a cache, asks for the same script once more.
                asked.append(QString::fromLatin1(socket->readAll()).section(' ', 1, 1));
                asked.removeDuplicates();
                if (!text.isEmpty()) {
                    socket->write(text);
                    socket->disconnectFromHost();
                }
            });
        });
    }
    QString address(const QString& path) const
    {
        return QString("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }
    QStringList asked;

private:
    QByteArray text;
};

QByteArray answerOf(const QByteArray& script, const QByteArray& status = "200 OK")
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: text/javascript\r\nConnection: close\r\nContent-Length: " +
           QByteArray::number(script.size()) + "\r\n\r\n" + script;
}

/// As much of a map as the page needs to start and to be fed, and nothing to see.
const char serviceScript[] = R"js(
window.google = { maps: (function () {
  class Base { constructor(o) { Object.assign(this, o); } setMap(m) { this.map = m; } getMap() { return this.map; }
    addListener() {} setOptions() {} setStyle() {} forEach() {} remove() {}
    add(o) { (this.all = this.all || []).push(o); return o; } setPath(p) { this.path = p; }
    setContent() {} setPosition() {} open() {} close() {} }
  class LatLng { constructor(a, b) { this.a = a; this.b = b; } lat() { return this.a; } lng() { return this.b; } }
  class Point { constructor(x, y) { this.x = x; this.y = y; } }
  class Map { constructor(e, o) { this.c = o.center; this.z = o.zoom; this.controls = [[]]; } setOptions() {} addListener() {}
    getCenter() { return this.c; } setCenter(c) { this.c = c; } getZoom() { return this.z; } setZoom(z) { this.z = z; } }
  return { fromService: true, Map: Map, LatLng: LatLng, Point: Point, Data: Base, Marker: Base, Polyline: Base, InfoWindow: Base,
    OverlayView: Base, ControlPosition: { TOP_RIGHT: 0 },
    event: { addListener: function () {} } };
})() };
)js";

} // namespace

class TestPageService : public QObject
{
    Q_OBJECT

private slots:
    void aServiceThatAnswersIsTaken();
    void theKeyIsSentAndEscaped();
    void aServiceThatIsNotThereIsGivenUpAtOnce();
    void anAnswerWithoutAMapIsGivenUp_data();
    void anAnswerWithoutAMapIsGivenUp();
    void aServiceThatIsSilentIsGivenUpAfterTheWait();
    void settingsThatLackOrBreakAreAsShipped_data();
    void settingsThatLackOrBreakAreAsShipped();

private:
    PageCopy pages;
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

    /// The shipped page with these settings.
    QUrl pageWith(const QString& address, const QString& key, double wait)
    {
        return pages.with(
            {{"address", "'" + address + "'"}, {"key", "'" + key + "'"}, {"wait", QString::number(wait)}});
    }
    void openWindow()
    {
        window.reset();
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        // The program feeds each page that has loaded, and also one that has failed to.
        connect(window->view, &QWebView::loadFinished, this, [this] {
            window->run("addVORMarker(new google.maps.LatLng(46.70000, 2.30000),\"A-A\",1,\"x\");addNavMgr();"
                        "VORMgr.addMarkers(listVOR)");
            window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.50000));");
            window->run("map.setZoom(6)");
        });
    }
    bool isEngine()
    {
        return window->run("typeof mapEngine === 'object' && !google.maps.fromService").toBool();
    }
};

void TestPageService::aServiceThatAnswersIsTaken()
{
    Service service(answerOf(serviceScript));
    openWindow();
    QVERIFY(window->load(pageWith(service.address("/map.js"), "", 30)));
    QVERIFY(window->run("google.maps.fromService").toBool());
    QVERIFY(!window->run("typeof mapEngine === 'object'").toBool());
    QCOMPARE(service.asked, QStringList{"/map.js"});
    QCOMPARE(window->run("listVOR.length").toInt(), 1);
    QCOMPARE(window->run("map.getZoom()").toInt(), 6);
    QCOMPARE(window->page->messages.join(' '), QString());
}

void TestPageService::theKeyIsSentAndEscaped()
{
    Service service(answerOf(serviceScript));
    openWindow();
    QVERIFY(window->load(pageWith(service.address("/map.js"), "a&b", 30)));
    QVERIFY(window->load(pageWith(service.address("/map.js?v=3"), "k", 30)));
    QCOMPARE(service.asked, (QStringList{"/map.js?key=a%26b", "/map.js?v=3&key=k"}));
}

void TestPageService::aServiceThatIsNotThereIsGivenUpAtOnce()
{
    QString address;
    {
        Service gone(QByteArray("x"));
        address = gone.address("/map.js");
    }
    openWindow();
    QVERIFY(window->load(pageWith(address, "", 30)));
    QVERIFY(isEngine());
    QCOMPARE(window->run("listVOR.length").toInt(), 1);
    QCOMPARE(window->run("location.search").toString(), "");
}

void TestPageService::anAnswerWithoutAMapIsGivenUp_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("an error page") << answerOf("<html>not here</html>", "404 Not Found");
    QTest::newRow("a broken script") << answerOf("window.google = {maps: {");
    QTest::newRow("a script without a map") << answerOf("window.google = {maps: {version: 3}};");
    QTest::newRow("nothing") << answerOf("");
}

void TestPageService::anAnswerWithoutAMapIsGivenUp()
{
    QFETCH(QByteArray, answer);
    Service service(answer);
    openWindow();
    window->page->expectFault("map.js");
    QVERIFY(window->load(pageWith(service.address("/map.js"), "", 30)));
    QVERIFY(isEngine());
    QCOMPARE(window->run("listVOR.length").toInt(), 1);
    QCOMPARE(window->run("map.getCenter().lat()").toDouble(), 46.5);
}

void TestPageService::aServiceThatIsSilentIsGivenUpAfterTheWait()
{
    Service service{QByteArray()};
    openWindow();
    // What the program says to the page that still waits finds nothing there.
    window->page->expectFault("Can't find variable: addVORMarker");
    window->page->expectFault("Can't find variable: map");
    window->page->expectFault("Can't find variable: google");
    QSignalSpy finished(window->view, &QWebView::loadFinished);
    window->view->load(pageWith(service.address("/map.js"), "", 0.3));
    QTRY_VERIFY_WITH_TIMEOUT(isEngine(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty() && finished.last().first().toBool(), 20000);
    QCOMPARE(service.asked, QStringList{"/map.js"});
    // The feed came again with the page that has the engine, and stands in it once.
    QTRY_COMPARE_WITH_TIMEOUT(window->run("listVOR.length").toInt(), 1, 20000);
    QCOMPARE(window->run("map.getCenter().lat()").toDouble(), 46.5);
    QVERIFY(!window->menuAt(46.2, 2.5).isEmpty());
}

void TestPageService::settingsThatLackOrBreakAreAsShipped_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<bool>("isBroken");
    QTest::newRow("of an earlier version") << QByteArray("var mapSettings = { address: '' };") << false;
    QTest::newRow("broken") << QByteArray("var mapSettings = {") << true;
    QTest::newRow("empty") << QByteArray() << false;
}

void TestPageService::settingsThatLackOrBreakAreAsShipped()
{
    QFETCH(QByteArray, settings);
    QFETCH(bool, isBroken);
    const QUrl address = pages.with({});
    QFile file(pages.path("maps/service.js"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(settings), qint64(settings.size()));
    file.close();
    openWindow();
    if (isBroken)
        window->page->expectFault("service.js");
    QVERIFY(window->load(address));
    QVERIFY(isEngine());
    QCOMPARE(window->run("mapService.wait").toInt(), 4);
    QCOMPARE(window->run("mapService.tileLastZoom").toInt(), 18);
    QCOMPARE(window->run("listVOR.length").toInt(), 1);
}

QTEST_MAIN(TestPageService)
#include "tst_pageservice.moc"
