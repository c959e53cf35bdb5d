#include "startupsituation.h"

#include "platformpath.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>
#include <QTextCodec>
#include <QTextStream>

namespace {

// The lines pass through as Latin-1, one character a byte, so that whatever code page the simulator's user has
// written them in comes out as it went in. Only the new line is encoded for the platform.
void passBytes(QTextStream& stream)
{
    stream.setCodec("ISO-8859-1");
    stream.setAutoDetectUnicode(false);
}

QString bytesAsText(const QString& text)
{
    return QString::fromLatin1(QTextCodec::codecForLocale()->fromUnicode(text));
}

} // namespace

bool setStartupSituation(const QString& iniPath, const QString& situationFile)
{
    QFile file(platformPath(iniPath));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return false;
    }
    // A forward slash, unlike in the paths of the files themselves: as the simulator's ini file expects it.
    const QString startup = bytesAsText(QStringLiteral("startupSituation=Saved Simulations/%1").arg(situationFile));
    QStringList lines;
    QTextStream reader(&file);
    passBytes(reader);
    while (!reader.atEnd()) {
        const QString line = reader.readLine();
        lines += line.startsWith(QLatin1String("startupSituation")) ? startup : line;
    }
    file.close();

    // Written to the side: a disk that is full must not cost the simulator its settings.
    QSaveFile rewritten(file.fileName());
    rewritten.setDirectWriteFallback(true);
    if (!rewritten.open(QIODevice::WriteOnly)) {
        return false;
    }
    QTextStream writer(&rewritten);
    passBytes(writer);
    writer << lines.join(QLatin1Char('\n'));
    writer.flush();
    return rewritten.commit();
}
