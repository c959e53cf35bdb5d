#include "mywebpage.h"

#include <QWebSettings>

myWebPage::myWebPage(QObject* parent) : QWebPage(parent)
{
    QWebSettings::clearMemoryCaches();
    QWebSettings::setObjectCacheCapacities(0, 0, 0);
    QWebSettings::setMaximumPagesInCache(0);
}

bool myWebPage::supportsExtension(Extension extension) const
{
    return extension != ErrorPageExtension && QWebPage::supportsExtension(extension);
}

void myWebPage::javaScriptAlert(QWebFrame* frame, const QString& msg)
{
    Q_UNUSED(frame)
    emit sendData(msg);
}

QString myWebPage::userAgentForUrl(const QUrl& url) const
{
    Q_UNUSED(url)
    // One fixed browser name, whatever the platform: map services choose what they send by it.
    return QStringLiteral("Mozilla/5.0 (Windows NT 6.1; WOW64) AppleWebKit/535.2 (KHTML, like Gecko) "
                          "Chrome/15.0.874.121 Safari/535.2");
}
