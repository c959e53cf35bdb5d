#include "wholefile.h"

#include "platformpath.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QSaveFile>

#include <cerrno>

namespace {

bool putBytes(QFile& file, const QByteArray& bytes)
{
    return file.seek(0) && file.write(bytes) == bytes.size() && file.resize(bytes.size());
}

/// For a folder that takes no new file, but lets the old one be written. Nothing is cut off ahead of the writing: the
/// old content finds its room again when there is none for the new one.
WriteEnd writeInPlace(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return WriteEnd::NotOpened;
    }
    const QByteArray before = file.readAll();
    if (putBytes(file, bytes)) {
        return WriteEnd::Whole;
    }
    putBytes(file, before);
    return WriteEnd::NotWhole;
}

// QSaveFile keeps no code of what has failed, only the system's words for it.
bool isOutOfRoom(const QSaveFile& file)
{
#ifdef Q_OS_UNIX
    return file.errorString() == qt_error_string(ENOSPC) || file.errorString() == qt_error_string(EDQUOT);
#else
    Q_UNUSED(file)
    return false; // where a disk has no count of files that could run out
#endif
}

/// Whether the file to the side, whose name goes on where this one ends, can have no name: the systems take 255 bytes.
bool leavesNoNameBeside(const QString& path)
{
    constexpr int longest = 255;
    constexpr int furtherBytes = 7; // a dot and six letters
    return QFile::encodeName(QFileInfo(path).fileName()).size() + furtherBytes > longest;
}

WriteEnd replace(const QString& path, const QByteArray& bytes)
{
    const QFileInfo present(path);
    if (path.isEmpty() || (present.exists() && !present.isFile())) {
        return WriteEnd::NotOpened; // a device or a pipe would be replaced by a file
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        const WriteEnd inPlace = writeInPlace(path, bytes);
        return inPlace == WriteEnd::NotOpened && isOutOfRoom(file) ? WriteEnd::NotWhole : inPlace;
    }
    // Flushed by hand: what fails in the flush of `commit` itself goes unnoticed there, and an empty file takes over.
    if (file.write(bytes) == bytes.size() && file.flush() && file.commit()) {
        return WriteEnd::Whole;
    }
    // The file to the side gets its name only when it takes the old one's place.
    return leavesNoNameBeside(path) ? writeInPlace(path, bytes) : WriteEnd::NotWhole;
}

} // namespace

WriteEnd writeWholeFile(const QString& path, const QByteArray& bytes)
{
    const WriteEnd end = replace(platformPath(path), bytes);
    if (end == WriteEnd::NotWhole) {
        const QString text =
            QCoreApplication::translate("WholeFile", "Le fichier %1 n'a pas pu être écrit en entier : le disque est "
                                                     "peut-être plein.\nCe qu'il contenait avant est conservé.");
        QMessageBox::warning(nullptr, QCoreApplication::translate("WholeFile", "Erreur d'écriture"), text.arg(path));
    }
    return end;
}

bool hasRoomBeside(const QString& path, qint64 bytes)
{
    QSaveFile trial(platformPath(path));
    return trial.open(QIODevice::WriteOnly) && trial.write(QByteArray(static_cast<int>(bytes), '\0')) == bytes &&
           trial.flush();
}
