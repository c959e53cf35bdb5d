#include "startupsituation.h"

#include "platformpath.h"

#include <QFile>
#include <QSaveFile>
#include <QTextCodec>
#include <QTextStream>

namespace {

const QLatin1String byteOrderMark("\xEF\xBB\xBF"); // of UTF-8, as some editors put it

// The lines pass through as Latin-1, one character a byte, so that whatever code page the simulator's user has
// written them in comes out as it went in. Only the new line is encoded: as the mark tells, else for the platform.
void passBytes(QTextStream& stream)
{
    stream.setCodec("ISO-8859-1");
    stream.setAutoDetectUnicode(false);
}

QString bytesAsText(const QString& text, bool isUtf8)
{
    return QString::fromLatin1(isUtf8 ? text.toUtf8() : QTextCodec::codecForLocale()->fromUnicode(text));
}

} // namespace

QStringList startupLines(QIODevice& ini, const QString& situationFile)
{
    // A forward slash, unlike in the paths of the files themselves: as the simulator's ini file expects it.
    const QString startup = QStringLiteral("startupSituation=Saved Simulations/%1").arg(situationFile);
    QTextStream reader(&ini);
    passBytes(reader);
    QStringList lines;
    QString line;
    bool isUtf8 = false;
    // Until no line comes, not until the stream's end: a file that holds less than its size tells, or fails under the
    // reader, never comes to that end.
    while (reader.readLineInto(&line)) {
        if (lines.isEmpty() && line.startsWith(byteOrderMark)) {
            line.remove(0, byteOrderMark.size());
            isUtf8 = true;
        }
        lines += line.startsWith(QLatin1String("startupSituation")) ? bytesAsText(startup, isUtf8) : line;
    }
    return lines;
}

bool setStartupSituation(QFile& ini, const QString& situationFile)
{
    const QStringList lines = startupLines(ini, situationFile);
    // What was read ahead of a failure is not the simulator's settings.
    const bool complete = ini.error() == QFileDevice::NoError;
    ini.close();
    // Written to the side: a disk that is full must not cost the simulator its settings.
    QSaveFile rewritten(ini.fileName());
    rewritten.setDirectWriteFallback(true);
    if (!complete || !rewritten.open(QIODevice::WriteOnly)) {
        return false;
    }
    QTextStream writer(&rewritten);
    passBytes(writer);
    writer << lines.join(QLatin1Char('\n'));
    writer.flush();
    return rewritten.commit();
}

bool setStartupSituation(const QString& iniPath, const QString& situationFile)
{
    QFile file(platformPath(iniPath));
    return file.open(QIODevice::ReadOnly | QIODevice::Text) && setStartupSituation(file, situationFile);
}
