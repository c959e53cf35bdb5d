#include "mywebpage.h"

#include "pagenetwork.h"

#include <QNetworkRequest>
#include <QWebFrame>
#include <QWebSettings>

namespace {

/// What a map needs none of. Some are off by default: that they stay so is what matters here.
const QWebSettings::WebAttribute refused[] = {
    QWebSettings::JavaEnabled,
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
    QWebSettings::MediaEnabled,
};

} // namespace

myWebPage::myWebPage(QObject* parent) : QWebPage(parent)
{
    QWebSettings::clearMemoryCaches();
    QWebSettings::setObjectCacheCapacities(0, 0, 0);
    QWebSettings::setMaximumPagesInCache(0);
    for (const QWebSettings::WebAttribute attribute : refused) {
        settings()->setAttribute(attribute, false);
    }
    setNetworkAccessManager(new PageNetwork(this));
}

bool myWebPage::supportsExtension(Extension extension) const
{
    return extension != ErrorPageExtension && extension != ChooseMultipleFilesExtension &&
           QWebPage::supportsExtension(extension);
}

bool myWebPage::acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type)
{
    if (frame == nullptr) {
        return false; // a window of its own
    }
    if (frame != mainFrame()) {
        return request.url().scheme() == QLatin1String("about");
    }
    const bool isOurs = first.isEmpty() ? request.url().isLocalFile() : isBesidePage(request.url(), first);
    const bool accepted = isOurs && QWebPage::acceptNavigationRequest(frame, request, type);
    if (accepted && first.isEmpty()) {
        first = request.url();
    }
    return accepted;
}

QUrl myWebPage::firstPage() const
{
    return first;
}

void myWebPage::javaScriptAlert(QWebFrame* frame, const QString& msg)
{
    Q_UNUSED(frame)
    emit sendData(msg);
}

bool myWebPage::javaScriptConfirm(QWebFrame* frame, const QString& msg)
{
    Q_UNUSED(frame)
    Q_UNUSED(msg)
    return false;
}

bool myWebPage::javaScriptPrompt(QWebFrame* frame, const QString& msg, const QString& defaultValue, QString* result)
{
    Q_UNUSED(frame)
    Q_UNUSED(msg)
    Q_UNUSED(defaultValue)
    Q_UNUSED(result)
    return false;
}

QString myWebPage::chooseFile(QWebFrame* frame, const QString& oldFile)
{
    Q_UNUSED(frame)
    Q_UNUSED(oldFile)
    return {};
}

QString myWebPage::userAgentForUrl(const QUrl& url) const
{
    Q_UNUSED(url)
    // One fixed browser name, whatever the platform: map services choose what they send by it.
    return QStringLiteral("Mozilla/5.0 (Windows NT 6.1; WOW64) AppleWebKit/535.2 (KHTML, like Gecko) "
                          "Chrome/15.0.874.121 Safari/535.2");
}
