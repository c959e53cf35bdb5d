#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

class QTextCodec;

/// For a settings file that an editor has saved as "Unicode", two bytes a character: its codec, told by the mark or by
/// the empty half of the first character. `start` holds the file's first two bytes, or more. Null for a file of single
/// bytes.
QTextCodec* wideCodec(const QByteArray& start);

/// A file of two-byte characters in the single bytes that QSettings understands, as QSettings writes them itself: what
/// lies beyond Latin-1 is escaped. Any other file as it stands.
QByteArray settingsBytes(const QByteArray& ini);

/// A settings file as QSettings can read it, without a change to the file.
class ReadableIni
{
public:
    explicit ReadableIni(const QString& path);

    /// The file itself; of a file of two-byte characters a copy of single bytes, which is gone with this object. The
    /// file itself also where no copy can be made.
    QString path() const;

private:
    QString original;
    QTemporaryFile copy;
};
