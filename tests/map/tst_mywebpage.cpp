// The page class: a fixed browser name, alerts that open no box, no caches.
#include "mywebpage.h"

#include <QApplication>
#include <QUrl>
#include <QWebFrame>
#include <QWebSettings>
#include <QtTest>

namespace {

struct OpenPage : myWebPage
{
    using myWebPage::userAgentForUrl;
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
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toBool(), false);
        QCOMPARE(page.mainFrame()->toPlainText(), QString());
    }

    void noPageStaysInTheCache()
    {
        QWebSettings::setMaximumPagesInCache(3);
        const OpenPage page;
        QCOMPARE(QWebSettings::maximumPagesInCache(), 0);
    }
};

QTEST_MAIN(TestMyWebPage)
#include "tst_mywebpage.moc"
