#include "textfile.h"

#include "platformpath.h"

#include <QSaveFile>
#include <QTextStream>

bool writeTextFile(const QString& path, const QStringList& pieces)
{
    QSaveFile file(platformPath(path));
    file.setDirectWriteFallback(true); // a folder that takes no new file, but lets the old one be written
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QTextStream stream(&file);
    for (const QString& piece : pieces) {
        stream << piece;
    }
    stream.flush();
    return file.commit();
}
