// A raster map over the base map: asked for only with an address, column and row as its server counts them, its maker
// named, the painted world where a picture is missing.
#include "pagecopy.h"
#include "pagewindow.h"

#include <QBuffer>
#include <QImage>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

const QColor land("#f6f3ea");
const QColor red("#cc2020");

QByteArray picture(const QColor& colour)
{
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

/// A server of pictures on this machine; one without a picture knows no address.
class TileServer : public QTcpServer
{
public:
    explicit TileServer(const QByteArray& answer) : bytes(answer)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                // A request may come in pieces.
                if (!socket->peek(65536).contains("\r\n\r\n"))
                    return;
                const QString asked = QString::fromLatin1(socket->readAll()).section(' ', 1, 1);
                paths.append(asked);
                QByteArray status = bytes.isEmpty() ? "404 Not Found" : "200 OK";
                if (!otherHost.isEmpty())
                    status = "302 Found\r\nLocation: " + (otherHost + asked).toLatin1();
                socket->write("HTTP/1.1 " + status + "\r\nContent-Type: image/png\r\nConnection: close\r\n" +
                              "Content-Length: " + QByteArray::number(bytes.size()) + "\r\n\r\n" + bytes);
                socket->disconnectFromHost();
            });
        });
    }
    QString host() const
    {
        return QString("http://127.0.0.1:%1").arg(serverPort());
    }
    QString address() const
    {
        return QString("'%1/{z}/{x}/{y}.png'").arg(host());
    }
    QStringList paths;
    QByteArray bytes;
    QString otherHost; ///< leads on to it, unless it is empty
};

} // namespace

class TestPageTiles : public QObject
{
    Q_OBJECT

private slots:
    void asShippedThereIsNone();
    void thePicturesAreAskedForAndShown();
    void columnsGoAroundTheWorldAndRowsEnd();
    void beyondTheLastZoomPicturesAreEnlarged();
    void theirMakerIsNamedAsText();
    void withoutPicturesTheBaseMapShows();
    void aMissingPictureIsNoMissingFileOfThePage();
    void theNamesStandWhereNoPictureComes();
    void theNamesGoWithTheFirstPicture();
    void thatNoPictureComesIsTold();
    void picturesOfAnotherHostComeOnceItIsNamed();
    void theGraticuleLiesOverThePictures();
    void byNightTheyAreDimmed();
    void noNamesShineThrough();

private:
    PageCopy pages;
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

    void open(const QMap<QString, QString>& settings, double latitude, double longitude, double zoom)
    {
        window.reset();
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        QVERIFY(window->load(pages.with(settings)));
        window->run(QString("map.setCenter(new google.maps.LatLng(%1,%2));map.setZoom(%3)")
                        .arg(latitude)
                        .arg(longitude)
                        .arg(zoom));
    }
    QString attribution()
    {
        return window->run("(document.querySelector('.attribution')||{}).textContent").toString();
    }
    /// Two of the base map's names, those that are written.
    QStringList names()
    {
        const QString text =
            "map.base.names.written.map(p => p.name.text).filter(n => n === 'Paris' || n === 'FRANCE')";
        window->settle();
        return window->run(text).toStringList();
    }
    /// What is told of missing pictures.
    QString note()
    {
        return window->run("(document.querySelector('.attribution:not([hidden])')||{}).textContent").toString();
    }
};

void TestPageTiles::asShippedThereIsNone()
{
    open({}, 46.73, 2.27, 6);
    QCOMPARE(window->colourAt(46.73, 2.27), land);
    QCOMPARE(window->run("map.overlayMapTypes.getLength()").toInt(), 0);
    QCOMPARE(window->run("document.images.length").toInt(), 0);
    QCOMPARE(window->run("document.querySelectorAll('.attribution').length").toInt(), 0);
}

void TestPageTiles::thePicturesAreAskedForAndShown()
{
    TileServer server(picture(red));
    open({{"tileAddress", server.address()}}, 46.73, 2.27, 6);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), red, 20000);
    // The one that holds 46.73 north, 2.27 east.
    QVERIFY2(server.paths.contains("/6/32/22.png"), qPrintable(server.paths.join(' ')));
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageTiles::columnsGoAroundTheWorldAndRowsEnd()
{
    TileServer server(picture(red));
    open({{"tileAddress", server.address()}}, 84, 180, 3);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(80, 170), red, 20000);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(80, 190), red, 20000);
    for (const QString& path : server.paths.filter(QRegularExpression("^/3/"))) {
        const int column = path.section('/', 2, 2).toInt();
        const int row = path.section('/', 3, 3).section('.', 0, 0).toInt();
        QVERIFY2(column >= 0 && column < 8 && row >= 0 && row < 8, qPrintable(path));
    }
}

void TestPageTiles::beyondTheLastZoomPicturesAreEnlarged()
{
    TileServer server(picture(red));
    open({{"tileAddress", server.address()}, {"tileLastZoom", "6"}}, 46.73, 2.27, 9);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), red, 20000);
    for (const QString& path : qAsConst(server.paths))
        QVERIFY2(path.startsWith("/6/"), qPrintable(path));
}

void TestPageTiles::theirMakerIsNamedAsText()
{
    TileServer server(picture(red));
    open({{"tileAddress", server.address()}, {"tileAttribution", "'© <b>The</b> Surveyors'"}}, 46.73, 2.27, 6);
    QCOMPARE(attribution(), "© <b>The</b> Surveyors");
    QVERIFY(window->run("document.querySelector('.attribution').offsetWidth").toInt() > 50);
}

void TestPageTiles::withoutPicturesTheBaseMapShows()
{
    TileServer server({});
    open({{"tileAddress", server.address()}}, 46.73, 2.27, 6);
    QTRY_VERIFY_WITH_TIMEOUT(server.paths.size() > 5, 20000);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), land, 20000);
}

void TestPageTiles::aMissingPictureIsNoMissingFileOfThePage()
{
    // Pictures in the page's folder, asked for while the page is read.
    open({{"tileAddress", "'tiles/{z}/{x}/{y}.png'"}}, 46.73, 2.27, 6);
    QVERIFY(std::any_of(window->requests.cbegin(), window->requests.cend(),
                        [](const QUrl& url) { return url.path().contains("/tiles/6/"); }));
    QCOMPARE(window->run("document.querySelectorAll('#incomplete').length").toInt(), 0);
    QCOMPARE(window->colourAt(46.73, 2.27), land);
}

void TestPageTiles::theNamesStandWhereNoPictureComes()
{
    TileServer server({});
    open({{"tileAddress", server.address()}}, 46.73, 2.27, 6);
    QTRY_VERIFY_WITH_TIMEOUT(server.paths.size() > 5, 20000);
    QTRY_COMPARE_WITH_TIMEOUT(names().size(), 2, 20000);
    QVERIFY(window->run("!!map.base.names.colours.coast && !!map.base.names.colours.border").toBool());
    window->run("page.setPalette('night')");
    QTRY_COMPARE_WITH_TIMEOUT(names().size(), 2, 20000);
}

void TestPageTiles::theNamesGoWithTheFirstPicture()
{
    TileServer server({});
    open({{"tileAddress", server.address()}, {"wait", "0.3"}}, 46.73, 2.27, 6);
    QTRY_VERIFY_WITH_TIMEOUT(!note().isEmpty(), 20000);
    server.bytes = picture(red);
    window->run("map.setZoom(7)");
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), red, 20000);
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList(), 20000);
    QVERIFY(!window->run("map.base.names.colours.coast || map.base.names.colours.border").toBool());
    // The network goes away: pictures that are there stay, but the next view has none.
    server.bytes.clear();
    window->run("map.setZoom(6)");
    QTRY_COMPARE_WITH_TIMEOUT(names().size(), 2, 20000);
}

void TestPageTiles::thatNoPictureComesIsTold()
{
    TileServer server({});
    open({{"tileAddress", server.address()}, {"wait", "0.3"}}, 46.73, 2.27, 6);
    QTRY_COMPARE_WITH_TIMEOUT(note(), "Aucune image de carte ne vient de " + server.host() + "/", 20000);
    QCOMPARE(window->run("document.querySelectorAll('.attribution').length").toInt(), 1);
    QVERIFY(window->run("document.querySelector('.attribution').offsetWidth").toInt() > 50);
    server.bytes = picture(red);
    window->run("map.setZoom(7)");
    QTRY_COMPARE_WITH_TIMEOUT(note(), QString(), 20000);
    QCOMPARE(window->run("document.querySelector('.attribution').offsetWidth").toInt(), 0);
}

void TestPageTiles::picturesOfAnotherHostComeOnceItIsNamed()
{
    TileServer server({});
    TileServer other(picture(red));
    server.otherHost = other.host();
    open({{"tileAddress", server.address()}, {"tileHosts", "'http://127.0.0.2 " + other.host() + "'"}}, 46.73, 2.27, 6);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), red, 20000);
    QCOMPARE(note(), QString());
    other.paths.clear();
    open({}, 46.73, 2.27, 6);
    window->page->expectFault("Content Security Policy");
    QVERIFY(window->load(pages.with({{"tileAddress", server.address()}, {"tileHosts", "''"}, {"wait", "0.3"}})));
    QTRY_VERIFY_WITH_TIMEOUT(!note().isEmpty(), 20000);
    QVERIFY(!window->page->messages.isEmpty());
    QCOMPARE(window->colourAt(46.73, 2.27), land);
    QCOMPARE(other.paths, QStringList());
}

void TestPageTiles::theGraticuleLiesOverThePictures()
{
    TileServer server(picture(red));
    open({{"tileAddress", server.address()}}, 46.73, 0, 6);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 1), red, 20000);
    // The meridian of Greenwich, one pixel wide: nine of a square of nine.
    QTRY_COMPARE_WITH_TIMEOUT(window->pixelsAround(46.73, 0, 4, red), 72, 20000);
}

void TestPageTiles::byNightTheyAreDimmed()
{
    TileServer server(picture(Qt::white));
    open({{"tileAddress", server.address()}}, 46.73, 2.27, 6);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), QColor(Qt::white), 20000);
    window->run("page.setPalette('night')");
    QTRY_VERIFY_WITH_TIMEOUT(window->colourAt(46.73, 2.27).lightness() < 150, 20000);
    window->run("page.setPalette('day')");
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), QColor(Qt::white), 20000);
}

void TestPageTiles::noNamesShineThrough()
{
    TileServer server(picture(Qt::white));
    open({{"tileAddress", server.address()}}, 46.73, 2.27, 6);
    QTRY_COMPARE_WITH_TIMEOUT(window->colourAt(46.73, 2.27), QColor(Qt::white), 20000);
    window->run("page.setPalette('night')");
    window->settle();
    QCOMPARE(names(), QStringList());
    // Nor do they stand on it, whatever the base map's colours.
    window->run("map.setOptions({styles: null})");
    window->settle();
    QCOMPARE(window->run("map.base.names.written.length").toInt(), 0);
    window->run("map.overlayMapTypes.pop()");
    window->settle();
    QCOMPARE(names().size(), 2);
}

QTEST_MAIN(TestPageTiles)
#include "tst_pagetiles.moc"
