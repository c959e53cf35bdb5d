#include "pagenetwork.h"

#include "mywebpage.h"

#include <QDebug>
#include <QNetworkRequest>
#include <QUrl>
#include <QWebFrame>

namespace {

/// The first of the pages that a request is for, be one of them shown or none; empty without any.
QUrl pageOf(const QNetworkRequest& request)
{
    const auto* frame = qobject_cast<QWebFrame*>(request.originatingObject());
    const auto* page = frame == nullptr ? nullptr : qobject_cast<myWebPage*>(frame->page());
    return page == nullptr ? QUrl() : page->firstPage();
}

bool isAhead(const QNetworkRequest& request)
{
    return request.rawHeader(QByteArrayLiteral("Purpose")) == "prefetch";
}

} // namespace

bool isBesidePage(const QUrl& url, const QUrl& page)
{
    const QUrl folder = page.adjusted(QUrl::RemoveFilename | QUrl::NormalizePathSegments);
    const QUrl file = url.adjusted(QUrl::NormalizePathSegments);
    return file.isLocalFile() && file.host() == folder.host() && file.path().startsWith(folder.path());
}

QNetworkReply* PageNetwork::createRequest(Operation operation, const QNetworkRequest& request, QIODevice* data)
{
    const QUrl page = pageOf(request);
    const bool isForeignFile =
        !page.isEmpty() && request.url().scheme() == QLatin1String("file") && !isBesidePage(request.url(), page);
    if (isForeignFile && !hasTold) {
        hasTold = true;
        qDebug() << "Not in the folder of the map page, not loaded:" << request.url().toString();
    }
    return isForeignFile || isAhead(request)
               ? QNetworkAccessManager::createRequest(GetOperation, QNetworkRequest(), nullptr)
               : QNetworkAccessManager::createRequest(operation, request, data);
}
