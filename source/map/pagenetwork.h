#pragma once

#include <QNetworkAccessManager>

/// The network of the map page: files of the page's own folder, and what the page's content policy lets through.
///
/// Refused are files from anywhere else on the machine or on a share (the engine would hand a user's log-on to a server
/// that a name makes it ask) and what the engine fetches ahead, which passes by the content policy of a page.
class PageNetwork : public QNetworkAccessManager
{
    Q_OBJECT

public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    /// A refused request fails as one to an unknown protocol does. The first foreign file is told in the debug output.
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request, QIODevice* data) override;

private:
    /// Once is enough: a raster map asks for dozens of pictures at each move.
    bool hasTold = false;
};

/// True for a file in the folder of the page or below it. Symbolic links are not followed.
bool isBesidePage(const QUrl& url, const QUrl& page);
