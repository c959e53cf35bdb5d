#pragma once

#include <QString>
#include <QStringList>

class QFile;
class QIODevice;

/// The lines of the simulator's ini file, one character a byte (a file of two bytes a character: as its text), with
/// every line that starts with "startupSituation" made to name `situationFile` out of the saved situations. Without
/// such a line none is added. All other lines stay as they are, in their order; only a UTF-8 byte order mark ahead of
/// the first goes. Reads to the end of the file or to the first read that fails, which the caller learns from its
/// device.
QStringList startupLines(QIODevice& ini, const QString& situationFile);

/// Rewrites the simulator's ini file, open for reading as text, with its `startupLines`: single line feeds between them
/// and none behind the last. Closes it. A file that cannot be read to its end or cannot be written stays as it is, and
/// so does any file for a name with a line end in it: false, and the user knows of it only when the disk had no room
/// for the whole file.
bool setStartupSituation(QFile& ini, const QString& situationFile);

/// The same by the file's path, which may hold backslashes. False also when there is no such file, or
/// when what stands there is no settings file.
bool setStartupSituation(const QString& iniPath, const QString& situationFile);
