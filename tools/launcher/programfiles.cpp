// The program and its pages, put where they are to be started.
#include "launcher.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSaveFile>

namespace {

struct Launcher
{
    Q_DECLARE_TR_FUNCTIONS(Launcher)
};

/// The name of a folder's entry as it stands there, whatever its case; `name` itself when there is none.
QString entryNamed(const QDir& folder, const QString& name)
{
    if (folder.exists(name)) {
        return name;
    }
    const QStringList entries = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0) {
            return entry;
        }
    }
    return name;
}

/// Whether a file comes with the program once, and is the user's from then on.
bool isUsers(const QString& relativePath)
{
    return relativePath == QLatin1String("maps/service.js");
}

bool sameBytes(const QString& one, const QString& other)
{
    QFile a(one);
    QFile b(other);
    if (a.size() != b.size() || !a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly)) {
        return false;
    }
    constexpr qint64 portion = 1 << 20; // bytes
    while (!a.atEnd()) {
        const QByteArray bytes = a.read(portion);
        if (bytes.isEmpty() || bytes != b.read(portion)) {
            return false; // nothing comes, ahead of the end, where the reading fails
        }
    }
    return true;
}

/// Never leaves half a file, and never writes into a program that runs. Gives the system's word for what failed.
QString copyFile(const QString& from, const QString& to)
{
    QFile source(from);
    QSaveFile target(to);
    if (!source.open(QIODevice::ReadOnly)) {
        return source.errorString();
    }
    if (!target.open(QIODevice::WriteOnly)) {
        return target.errorString();
    }
    const QByteArray bytes = source.readAll();
    if (source.error() != QFileDevice::NoError) {
        return source.errorString(); // what came ahead of a failure is no program
    }
    target.write(bytes);
    // A disk of another system knows no such rights, and then needs none.
    target.setPermissions(source.permissions() | QFileDevice::WriteOwner);
    // Flushed by hand: what fails in the flush of `commit` itself goes unnoticed there, and an empty file takes over.
    return target.flush() && target.commit() ? QString() : target.errorString();
}

QString cannotPlace(const QString& path, const QString& why)
{
    return Launcher::tr("Zephan Trajector ne peut pas être placé dans le dossier du simulateur :\n%1\n%2")
        .arg(QDir::toNativeSeparators(path), why);
}

/// Rights alone do not tell: a disk may be mounted to be read only. Without writing neither settings nor update files
/// would be kept.
QString whyNotWritable(const QString& folder)
{
    QSaveFile probe(folder + QLatin1String("/trajector.ini.probe"));
    if (probe.open(QIODevice::WriteOnly)) {
        probe.cancelWriting();
        return QString();
    }
    return probe.errorString();
}

} // namespace

QString launcher::programFolder(const QString& simulator)
{
    const QDir root(simulator);
    const QDir tools(root.filePath(entryNamed(root, QStringLiteral("Tools"))));
    return tools.filePath(entryNamed(tools, QStringLiteral("Trajector")));
}

QString launcher::bringUpToDate(const QString& from, const QString& to)
{
    if (!QDir(to).mkpath(QStringLiteral("Data"))) {
        return cannotPlace(to, Launcher::tr("Le dossier ne peut pas être créé."));
    }
    const QString refusal = whyNotWritable(to);
    if (!refusal.isEmpty()) {
        return cannotPlace(to, refusal);
    }
    const QDir source(from);
    for (QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString file = files.next();
        const QString copy = QDir(to).filePath(source.relativeFilePath(file));
        if (sameBytes(file, copy) || (isUsers(source.relativeFilePath(file)) && QFile::exists(copy))) {
            continue;
        }
        if (!QDir().mkpath(QFileInfo(copy).path())) {
            return cannotPlace(copy, Launcher::tr("Le dossier ne peut pas être créé."));
        }
        const QString failure = copyFile(file, copy);
        if (!failure.isEmpty()) {
            return cannotPlace(copy, failure);
        }
    }
    return QString();
}
