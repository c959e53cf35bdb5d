#include "album.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

Album::Album(const QString& folderName) : folder(folderName.isEmpty() ? QString() : QDir(folderName).absolutePath())
{
    if (folder.isEmpty()) {
        return;
    }
    QDir dir(folder);
    dir.mkpath(QStringLiteral("."));
    const QStringList old = dir.entryList({QStringLiteral("[0-9][0-9]-*.png")}, QDir::Files);
    for (const QString& picture : old) {
        dir.remove(picture);
    }
}

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
