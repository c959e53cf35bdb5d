// Disks that are full or read-only, for root too: rights do not bind root, a mount does.
#include "smalldisk.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QMap>

#include <cerrno>
#include <cstring>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

const QString filler = QStringLiteral(".filler");
bool mountsTaken = false;

void check(bool ok, const char* what)
{
    if (!ok)
        qFatal("small disk: %s: %s", what, strerror(errno));
}

bool writeOneLine(const char* path, const QByteArray& line)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(line) == line.size();
}

/// A mount at a place, of a kind, from somewhere else or from the place itself.
bool mountAt(const QString& place, const char* source, unsigned long flags, const QByteArray& options = QByteArray())
{
    const QByteArray name = QFile::encodeName(place);
    return mount(source == nullptr ? name.constData() : source, name.constData(), "tmpfs", flags,
                 options.constData()) == 0;
}

void unmount(const QString& place)
{
    umount2(QFile::encodeName(place).constData(), MNT_DETACH);
}

/// The files of a folder, by name.
QMap<QString, QByteArray> content(const QString& folder)
{
    QMap<QString, QByteArray> files;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        QFile file(QDir(folder).filePath(name));
        if (file.open(QIODevice::ReadOnly)) // another program may have taken it away
            files.insert(name, file.readAll());
    }
    return files;
}

} // namespace

bool takeOwnMounts()
{
    const QByteArray user = QByteArray::number(geteuid());
    const QByteArray group = QByteArray::number(getegid());
    if (geteuid() == 0) {
        if (unshare(CLONE_NEWNS) != 0)
            return false;
    } else if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 || !writeOneLine("/proc/self/setgroups", "deny") ||
               !writeOneLine("/proc/self/uid_map", "0 " + user + " 1") ||
               !writeOneLine("/proc/self/gid_map", "0 " + group + " 1")) {
        return false;
    }
    mountsTaken = mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return mountsTaken;
}

bool hasOwnMounts()
{
    return mountsTaken;
}

SmallDisk::SmallDisk(const QString& place, int bytes) : folder(place)
{
    const QMap<QString, QByteArray> files = content(folder);
    check(mountAt(folder, "tmpfs", 0, "size=" + QByteArray::number(bytes) + ",mode=0755"), "mounting");
    for (auto file = files.begin(); file != files.end(); ++file) {
        QFile copy(QDir(folder).filePath(file.key()));
        check(copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && copy.write(file.value()) == file->size(),
              "copying the folder");
    }
}

SmallDisk::~SmallDisk()
{
    unmount(folder);
}

void SmallDisk::fill(int pagesLeft)
{
    QFile file(QDir(folder).filePath(filler));
    check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered), "filling");
    const QByteArray page(4096, 'x');
    while (file.write(page) == page.size()) {
    }
    check(pagesLeft == 0 || file.resize(file.size() - qint64{pagesLeft} * page.size()), "leaving pages");
}

void SmallDisk::makeRoom()
{
    check(QFile::remove(QDir(folder).filePath(filler)), "making room");
}

void SmallDisk::takeNoFurtherFile()
{
    const int entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size();
    const QByteArray files = QByteArray::number(entries + 1); // and the folder itself
    check(mountAt(folder, "tmpfs", MS_REMOUNT, "nr_inodes=" + files), "counting the files");
}

// Of the mount and not of the disk below it: a writable file is a mount of its own on the same disk.

void SmallDisk::protect()
{
    check(mountAt(folder, "none", MS_REMOUNT | MS_BIND | MS_RDONLY), "protecting");
}

void SmallDisk::unprotect()
{
    check(mountAt(folder, "none", MS_REMOUNT | MS_BIND), "ending the protection");
}

WritableFile::WritableFile(const QString& file) : path(file)
{
    check(mountAt(path, nullptr, MS_BIND), "keeping a file writable");
}

WritableFile::~WritableFile()
{
    unmount(path);
}
