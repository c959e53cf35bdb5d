#pragma once

#include <QByteArray>
#include <QString>

/// How the writing of a file ended.
enum class WriteEnd
{
    Whole,     ///< the new content stands
    NotOpened, ///< nothing can be written under this name: no such folder, a folder in its place, no right, too long
    NotWhole,  ///< no room for the whole content or for one more file, as on a full disk; the user has been told
};

/// Makes `bytes` the content of the file at `path`, which may hold backslashes. They are written to the side and take
/// the old file's place when they are complete, so that for anything but `Whole` what was there before stands as it
/// was.
WriteEnd writeWholeFile(const QString& path, const QByteArray& bytes);

/// True when the folder of the file takes that much beside it; nothing stays of the trial. For files that others write.
bool hasRoomBeside(const QString& path, qint64 bytes);
