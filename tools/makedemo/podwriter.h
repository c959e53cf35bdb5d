#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// One entry of an archive to be written.
struct PodContent
{
    QByteArray name; ///< plain ASCII, may hold path elements
    QByteArray data;
};

/// The bytes of a POD archive: header, the entries' data one behind the other, directory, name table.
QByteArray podBytes(const QVector<PodContent>& entries);

/// Writes an archive, replacing the file. False when the file cannot be written.
bool writePod(const QString& path, const QVector<PodContent>& entries);
