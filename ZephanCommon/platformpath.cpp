#include "platformpath.h"

#include <QDir>

QString platformPath(const QString& path)
{
    QString result = path;
    // The separator decides, not the platform's name: where it is a backslash there is nothing to turn.
    return QDir::separator() == QLatin1Char('\\') ? result : result.replace(QLatin1Char('\\'), QLatin1Char('/'));
}
