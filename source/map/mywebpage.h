#pragma once

#include <QWebPage>

/// The map page: never served from WebKit's caches, and its `alert` goes to the log instead of a box.
class myWebPage : public QWebPage
{
    Q_OBJECT

public:
    explicit myWebPage(QObject* parent = nullptr);

    /// False for the engine's own error page: a missing map page leaves the map blank.
    bool supportsExtension(Extension extension) const override;

public slots:
    void javaScriptAlert(QWebFrame* frame, const QString& msg) override;

signals:
    void sendData(QString msg);

protected:
    QString userAgentForUrl(const QUrl& url) const override;
};
