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

/// Whether a file can be a settings file: no device, pipe or folder, and of at most 4 MiB. Such a file is some hundred
/// lines; what is larger is none, and a pipe would be waited for.
bool isSettingsFile(const QString& path);

/// A settings file as QSettings can read it without harm, without a change to the file.
class ReadableIni
{
public:
    explicit ReadableIni(const QString& path);

    /// The file itself. Of a file of two-byte characters, or with packed values of no fixed size, a copy that QSettings
    /// understands, and of what is no settings file an empty one; it is gone with this object. Empty, which QSettings
    /// takes for a missing file, where no copy can be made.
    QString path() const;

private:
    QString readable;
    QTemporaryFile copy;
};
