#include "album.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

QString emptiedFolder(const QString& name, const QString& pattern)
{
    if (name.isEmpty()) {
        return {};
    }
    QDir dir(name);
    dir.mkpath(QStringLiteral("."));
    const QStringList old = dir.entryList({pattern}, QDir::Files);
    for (const QString& picture : old) {
        dir.remove(picture);
    }
    return dir.absolutePath();
}

Album::Album(const QString& folderName) : folder(emptiedFolder(folderName, QStringLiteral("[0-9][0-9]-*.png"))) {}

bool Album::take(QWidget* widget, const QString& name)
{
    if (folder.isEmpty()) {
        return true;
    }
    ++taken;
    const QString path = QStringLiteral("%1/%2-%3.png").arg(folder).arg(taken, 2, 10, QLatin1Char('0')).arg(name);
    if (!widget->grab().save(path)) {
        std::fprintf(stderr, "tour: %s cannot be written\n", qPrintable(path));
        return false;
    }
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    return true;
}
