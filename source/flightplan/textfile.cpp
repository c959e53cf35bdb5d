#include "textfile.h"

#include <QDir>
#include <QTextStream>

#include <algorithm>

namespace {

bool staysInFolder(const QString& name)
{
    const QString leading = QDir::separator() == QLatin1Char('\\') ? QStringLiteral("/\\:") : QStringLiteral("/\\");
    // To the system a name ends at its first zero byte: it would be another one.
    return std::none_of(name.begin(), name.end(),
                        [&leading](QChar letter) { return letter.isNull() || leading.contains(letter); });
}

} // namespace

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

WriteEnd writeTextFileIn(const QString& folder, const QString& name, const QStringList& pieces)
{
    return staysInFolder(name) ? writeTextFile(folder + QLatin1Char('\\') + name, pieces) : WriteEnd::NotOpened;
}
