// The page class: a fixed browser name, alerts that open no box, no caches, and what a script of the page cannot do.
#include "mywebpage.h"

#include "pagenetwork.h"

#include <QApplication>
#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QUrl>
#include <QWebFrame>
#include <QWebSettings>
#include <QWebView>
#include <QtTest>

namespace {

struct OpenPage : myWebPage
{
    using myWebPage::userAgentForUrl;
};

/// A page in a folder of its own, with a server that waits for whoever calls. Beside the page lie another page and a
/// picture, in the folder above a page, a picture and a text.
struct Scene
{
    QTemporaryDir root;
    QTcpServer server;
    QWebView view;
    OpenPage page;

    Scene()
    {
        QDir(root.path()).mkdir("bin");
        const QByteArray html = "<!DOCTYPE html><html><body>the map</body></html>";
        write("bin/map.html", html);
        write("bin/other.html", html);
        write("secret.html", html);
        write("secret.txt", "secret");
        QImage dot(1, 1, QImage::Format_RGB32);
        dot.fill(Qt::red);
        dot.save(root.filePath("bin/dot.png"));
        dot.save(root.filePath("dot.png"));
        server.listen(QHostAddress::LocalHost);
        view.setPage(&page);
        view.show();
        QSignalSpy finished(&page, &QWebPage::loadFinished);
        view.load(QUrl::fromLocalFile(root.filePath("bin/map.html")));
        if (finished.isEmpty())
            finished.wait(20000);
    }
    ~Scene()
    {
        view.setPage(nullptr);
    }
    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(root.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }
    QVariant run(QString script)
    {
        script.replace("HOST", "http://127.0.0.1:" + QString::number(server.serverPort()));
        return page.mainFrame()->evaluateJavaScript(script);
    }
    QString shown() const
    {
        return page.mainFrame()->url().fileName();
    }
};

} // namespace

class TestMyWebPage : public QObject
{
    Q_OBJECT

private slots:
    void browserNameIsTheSameForEveryAddress()
    {
        const OpenPage page;
        const QString expected = "Mozilla/5.0 (Windows NT 6.1; WOW64) AppleWebKit/535.2 (KHTML, like Gecko) "
                                 "Chrome/15.0.874.121 Safari/535.2";
        QCOMPARE(page.userAgentForUrl(QUrl("file:///gm_trajector_fr.html")), expected);
        QCOMPARE(page.userAgentForUrl(QUrl()), expected);
    }

    void theScriptSeesThatName()
    {
        OpenPage page;
        QCOMPARE(page.mainFrame()->evaluateJavaScript("navigator.userAgent").toString(),
                 QString("Mozilla/5.0 (Windows NT 6.1; WOW64) AppleWebKit/535.2 (KHTML, like Gecko) "
                         "Chrome/15.0.874.121 Safari/535.2"));
    }

    void anAlertIsSentOnAndOpensNoBox()
    {
        OpenPage page;
        QSignalSpy sent(&page, &myWebPage::sendData);
        // A box would block here until somebody answered it.
        page.mainFrame()->evaluateJavaScript("alert('Zoom \"6\" é'); alert('');");
        QCOMPARE(sent.count(), 2);
        QCOMPARE(sent.at(0).at(0).toString(), QString("Zoom \"6\" é"));
        QCOMPARE(sent.at(1).at(0).toString(), QString());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void aMissingPageLeavesNothingToSee()
    {
        OpenPage page;
        QSignalSpy finished(&page, &QWebPage::loadFinished);
        page.mainFrame()->load(QUrl::fromLocalFile("/no/such/folder/gm_trajector_fr.html"));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 20000);
        QCOMPARE(finished.at(0).at(0).toBool(), false);
        QCOMPARE(page.mainFrame()->toPlainText(), QString());
    }

    void noPageStaysInTheCache()
    {
        QWebSettings::setMaximumPagesInCache(3);
        const OpenPage page;
        QCOMPARE(QWebSettings::maximumPagesInCache(), 0);
    }

    // Whatever the engine's own defaults are: a page takes over what it does not set itself.
    void whatAMapNeedsNoneOfIsOff()
    {
        const QVector<QWebSettings::WebAttribute> attributes{QWebSettings::JavaEnabled,
                                                             QWebSettings::PluginsEnabled,
                                                             QWebSettings::JavascriptCanOpenWindows,
                                                             QWebSettings::JavascriptCanCloseWindows,
                                                             QWebSettings::JavascriptCanAccessClipboard,
                                                             QWebSettings::DeveloperExtrasEnabled,
                                                             QWebSettings::OfflineStorageDatabaseEnabled,
                                                             QWebSettings::OfflineWebApplicationCacheEnabled,
                                                             QWebSettings::LocalStorageEnabled,
                                                             QWebSettings::LocalContentCanAccessRemoteUrls,
                                                             QWebSettings::LocalContentCanAccessFileUrls,
                                                             QWebSettings::DnsPrefetchEnabled,
                                                             QWebSettings::HyperlinkAuditingEnabled,
                                                             QWebSettings::NotificationsEnabled,
                                                             QWebSettings::MediaEnabled};
        QWebSettings* all = QWebSettings::globalSettings();
        for (const QWebSettings::WebAttribute attribute : attributes) {
            const bool usual = all->testAttribute(attribute);
            all->setAttribute(attribute, true);
            QVERIFY(QWebPage().settings()->testAttribute(attribute));
            const bool isOn = myWebPage().settings()->testAttribute(attribute);
            all->setAttribute(attribute, usual);
            QVERIFY2(!isOn, qPrintable(QString::number(attribute)));
        }
    }

    void confirmAndPromptAnswerNoWithoutABox()
    {
        OpenPage page;
        QCOMPARE(page.mainFrame()->evaluateJavaScript("confirm('?') === false && prompt('?', 'x') === null").toBool(),
                 true);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void noScriptChoosesAFile()
    {
        QVERIFY(!myWebPage().supportsExtension(QWebPage::ChooseMultipleFilesExtension));
        Scene scene;
        scene.run(
            "['', 'multiple'].forEach(kind => { var input = document.createElement('input'); input.type = 'file'; "
            "if (kind) input.multiple = true; document.body.appendChild(input); input.click(); })");
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QCOMPARE(scene.run("document.querySelectorAll('input').length").toInt(), 2);
    }

    void noScriptOpensAWindowOrEndsOne()
    {
        Scene scene;
        const int widgets = QApplication::topLevelWidgets().size();
        QCOMPARE(scene.run("window.open('HOST/') === null || typeof window.open('other.html')").toString() == "object",
                 false);
        scene.run("window.close()");
        QCOMPARE(QApplication::topLevelWidgets().size(), widgets);
        QVERIFY(scene.view.isVisible());
    }

    void thePageStaysInItsFolder_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("a server") << "location.href = 'HOST/'";
        QTest::newRow("a server, for good") << "location.replace('HOST/')";
        QTest::newRow("the folder above") << "location.href = '../secret.html'";
        QTest::newRow("a text above") << "location.href = '../secret.txt'";
        QTest::newRow("a folder") << "location.href = '/'";
        QTest::newRow("a blank page") << "location.href = 'about:blank'";
        QTest::newRow("a page of its own making") << "location.href = 'data:text/html,<b>mine</b>'";
        QTest::newRow("a mail") << "location.href = 'mailto:a@b.c'";
        QTest::newRow("a link") << "var a = document.createElement('a'); a.href = 'HOST/'; "
                                   "document.body.appendChild(a); a.click()";
        QTest::newRow("a link to a new window") << "var a = document.createElement('a'); a.href = 'HOST/'; a.target = "
                                                   "'_blank'; document.body.appendChild(a); a.click()";
        QTest::newRow("a form") << "var f = document.createElement('form'); f.action = 'HOST/'; f.method = 'post'; "
                                   "document.body.appendChild(f); f.submit()";
        QTest::newRow("a refresh") << "var m = document.createElement('meta'); m.httpEquiv = 'refresh'; m.content = "
                                      "'0;url=HOST/'; document.head.appendChild(m)";
    }
    void thePageStaysInItsFolder()
    {
        QFETCH(QString, script);
        Scene scene;
        QCOMPARE(scene.shown(), QString("map.html"));
        QSignalSpy calls(&scene.server, &QTcpServer::newConnection);
        scene.run(script);
        // The next permitted step shows that the refused one is over.
        QTest::qWait(100);
        QCOMPARE(scene.shown(), QString("map.html"));
        scene.run("location.href = 'other.html'");
        QTRY_COMPARE_WITH_TIMEOUT(scene.shown(), QString("other.html"), 20000);
        QCOMPARE(calls.count(), 0);
    }

    // As a style sheet sets the property of the view.
    void theViewsAddressIsNoWayOutEither()
    {
        Scene scene;
        QSignalSpy changes(scene.page.mainFrame(), &QWebFrame::urlChanged);
        scene.view.setUrl(QUrl::fromLocalFile(scene.root.filePath("secret.html")));
        QTest::qWait(100);
        const QUrl other = QUrl::fromLocalFile(scene.root.filePath("bin/other.html"));
        scene.view.setUrl(other);
        QTRY_COMPARE_WITH_TIMEOUT(scene.shown(), QString("other.html"), 20000);
        for (const QList<QVariant>& change : changes)
            QVERIFY(change.at(0).toUrl().fileName() != "secret.html");
    }

    void thePageMayStartAgain()
    {
        Scene scene;
        QSignalSpy finished(&scene.page, &QWebPage::loadFinished);
        scene.run("location.replace(location.href + '?engine')");
        QTRY_VERIFY_WITH_TIMEOUT(finished.count() > 0, 20000);
        QCOMPARE(scene.run("location.search").toString(), QString("?engine"));
    }

    void anInnerFrameShowsNoFile()
    {
        Scene scene;
        QSignalSpy calls(&scene.server, &QTcpServer::newConnection);
        scene.run("['../secret.txt', 'other.html', 'HOST/', 'about:blank'].forEach(address => { "
                  "var frame = document.createElement('iframe'); frame.src = address; "
                  "document.body.appendChild(frame); })");
        QTest::qWait(100);
        const QList<QWebFrame*> inner = scene.page.mainFrame()->childFrames();
        QCOMPARE(inner.size(), 4);
        for (QWebFrame* frame : inner)
            QCOMPARE(frame->toPlainText(), QString());
        QCOMPARE(calls.count(), 0);
    }

    void noScriptReadsAFile_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("above") << "../secret.txt";
        QTest::newRow("beside") << "other.html";
        QTest::newRow("itself") << "dot.png";
    }
    void noScriptReadsAFile()
    {
        QFETCH(QString, address);
        Scene scene;
        const QString read = "var request = new XMLHttpRequest(); request.open('GET', '%1', false); "
                             "try { request.send(); 'read ' + request.responseText } catch (error) { 'refused' }";
        QCOMPARE(scene.run(read.arg(address)).toString(), QString("refused"));
    }

    void aPictureComesFromThePagesFolderAlone()
    {
        Scene scene;
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Not in the folder of the map page, not loaded: "));
        scene.run("var ends = []; ['dot.png', '../dot.png', 'file:///../dot.png', 'file://127.0.0.1/share/dot.png']"
                  ".forEach(address => { var image = new Image(); image.onload = () => ends.push(address + ' shown'); "
                  "image.onerror = () => ends.push(address + ' refused'); image.src = address; })");
        QTRY_COMPARE_WITH_TIMEOUT(scene.run("ends.length").toInt(), 4, 20000);
        QCOMPARE(scene.run("ends.sort().join(', ')").toString(),
                 QString("../dot.png refused, dot.png shown, file:///../dot.png refused, "
                         "file://127.0.0.1/share/dot.png refused"));
    }

    void nothingIsFetchedAhead()
    {
        Scene scene;
        QSignalSpy calls(&scene.server, &QTcpServer::newConnection);
        scene.run("var link = document.createElement('link'); link.rel = 'prefetch'; link.href = 'HOST/ahead'; "
                  "document.head.appendChild(link)");
        QTest::qWait(100);
        QCOMPARE(calls.count(), 0);
        // A picture is another matter: that is for the page's own policy to say.
        scene.run("new Image().src = 'HOST/picture.png'");
        QTRY_COMPARE_WITH_TIMEOUT(calls.count(), 1, 20000);
    }

    void filesBesideThePage_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("isBeside");
        QTest::newRow("script") << "file:///opt/zt/maps/page/map.js" << true;
        QTest::newRow("page with query") << "file:///opt/zt/map.html?engine" << true;
        QTest::newRow("above") << "file:///opt/secret.txt" << false;
        QTest::newRow("climbing") << "file:///opt/zt/../secret.txt" << false;
        QTest::newRow("coming back") << "file:///opt/zt/maps/../map.html" << true;
        QTest::newRow("like-named folder") << "file:///opt/ztx/map.html" << false;
        QTest::newRow("share") << "file://server/opt/zt/map.js" << false;
        QTest::newRow("server") << "http://server/opt/zt/map.js" << false;
    }
    void filesBesideThePage()
    {
        QFETCH(QString, file);
        QFETCH(bool, isBeside);
        QCOMPARE(isBesidePage(QUrl(file), QUrl("file:///opt/zt/map.html")), isBeside);
    }
};

QTEST_MAIN(TestMyWebPage)
#include "tst_mywebpage.moc"
