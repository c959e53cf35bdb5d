#include "textfile.h"

#include <QTextStream>

WriteEnd writeTextFile(const QString& path, const QStringList& pieces)
{
    QByteArray bytes;
    QTextStream stream(&bytes);
    for (const QString& piece : pieces) {
        stream << piece;
    }
    stream.flush();
    return writeWholeFile(path, bytes);
}
