#pragma once

#include <QMap>
#include <QTemporaryDir>
#include <QUrl>

/// The shipped pages in a folder of their own, where a test may change their settings.
class PageCopy
{
public:
    /// Copies the pages beside this test and sets values of `maps/service.js`, by name and as they are written there.
    /// An empty address when that fails or a name is not there.
    QUrl with(const QMap<QString, QString>& settings);
    QString path(const QString& file) const
    {
        return folder.filePath(file);
    }

private:
    QTemporaryDir folder;
};
