#pragma once

#include <QUrl>
#include <QWebPage>

/// The map page: never served from WebKit's caches, its `alert` goes to the log instead of a box. A script in it, be it
/// one that a name of the databases has brought, opens no window and no box, leads to no other page and reads no file.
class myWebPage : public QWebPage
{
    Q_OBJECT

public:
    explicit myWebPage(QObject* parent = nullptr);

    /// False for the engine's own error page (a missing map page leaves the map blank) and its choice of files.
    bool supportsExtension(Extension extension) const override;

    /// In whose folder all others lie; empty until it is asked for.
    QUrl firstPage() const;

public slots:
    void javaScriptAlert(QWebFrame* frame, const QString& msg) override;

signals:
    void sendData(QString msg);

protected:
    QString userAgentForUrl(const QUrl& url) const override;
    /// The first page may be any file; from it on, the pages of its folder and no other. An inner frame stays empty.
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;
    /// Always false, without a box: the pages ask nothing in this way.
    bool javaScriptConfirm(QWebFrame* frame, const QString& msg) override;
    bool javaScriptPrompt(QWebFrame* frame, const QString& msg, const QString& defaultValue, QString* result) override;
    /// Always none, without a box.
    QString chooseFile(QWebFrame* frame, const QString& oldFile) override;

private:
    /// Not the page that is shown: a style sheet can set the view's property `url`, and there is none in between.
    QUrl first;
};
