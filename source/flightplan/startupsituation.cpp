#include "startupsituation.h"

#include "platformpath.h"
#include "wholefile.h"
#include "wideini.h"

#include <QFile>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>

namespace {

const QLatin1String startupKey("startupSituation");
const QLatin1String byteOrderMark("\xEF\xBB\xBF"); // of UTF-8, as some editors put it

// A forward slash, unlike in the paths of the files themselves: as the simulator's ini file expects it.
QString startupLine(const QString& situationFile)
{
    return QStringLiteral("startupSituation=Saved Simulations/%1").arg(situationFile);
}

// A name with a line end in it would write lines of its own into the simulator's settings. Nothing is lost by leaving
// the file alone: the simulator could not find a situation of that name in it.
bool fitsOneLine(const QString& situationFile)
{
    return std::none_of(situationFile.begin(), situationFile.end(), [](QChar character) {
        return character == QLatin1Char('\r') || character == QLatin1Char('\n') || character.isNull();
    });
}

// As they stand in the file, whose first character may be a carriage return.
QByteArray firstBytes(QIODevice& ini)
{
    const bool textMode = ini.isTextModeEnabled();
    ini.setTextModeEnabled(false);
    const QByteArray bytes = ini.peek(2);
    ini.setTextModeEnabled(textMode);
    return bytes;
}

// The mark stays, as a character of the first line: nobody could read the file without it.
QStringList wideLines(QIODevice& ini, const QTextCodec& codec, const QString& startup)
{
    ini.setTextModeEnabled(false); // the half of a character may be a carriage return
    const QByteArray bytes = ini.readAll();
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = codec.toUnicode(bytes.constData(), bytes.size(), &state);
    QTextStream reader(&text);
    QStringList lines;
    QString line;
    while (reader.readLineInto(&line)) {
        const QString mark = line.startsWith(QChar(QChar::ByteOrderMark)) ? line.left(1) : QString();
        lines += line.midRef(mark.size()).startsWith(startupKey) ? mark + startup : line;
    }
    return lines;
}

QByteArray wideBytes(const QString& text, const QTextCodec& codec)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec.fromUnicode(text.constData(), text.size(), &state);
}

// The lines pass through as Latin-1, one character a byte, so that whatever code page the simulator's user has
// written them in comes out as it went in. Only the new line is encoded: as the mark tells, else for the platform.
QString bytesAsText(const QString& text, bool isUtf8)
{
    return QString::fromLatin1(isUtf8 ? text.toUtf8() : QTextCodec::codecForLocale()->fromUnicode(text));
}

} // namespace

QStringList startupLines(QIODevice& ini, const QString& situationFile)
{
    const QString startup = startupLine(situationFile);
    if (const QTextCodec* wide = wideCodec(firstBytes(ini))) {
        return wideLines(ini, *wide, startup);
    }
    QTextStream reader(&ini);
    reader.setCodec("ISO-8859-1");
    reader.setAutoDetectUnicode(false);
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
        lines += line.startsWith(startupKey) ? bytesAsText(startup, isUtf8) : line;
    }
    return lines;
}

bool setStartupSituation(QFile& ini, const QString& situationFile)
{
    if (!fitsOneLine(situationFile)) {
        ini.close();
        return false;
    }
    const QTextCodec* wide = wideCodec(firstBytes(ini));
    const bool halfCharacter = wide != nullptr && ini.size() % 2 != 0;
    const QString text = startupLines(ini, situationFile).join(QLatin1Char('\n'));
    // What was read ahead of a failure is not the simulator's settings.
    const bool complete = ini.error() == QFileDevice::NoError && !halfCharacter;
    ini.close();
    const QByteArray bytes = wide != nullptr ? wideBytes(text, *wide) : text.toLatin1();
    // Written to the side: a disk that is full must not cost the simulator its settings.
    return complete && writeWholeFile(ini.fileName(), bytes) == WriteEnd::Whole;
}

bool setStartupSituation(const QString& iniPath, const QString& situationFile)
{
    QFile file(platformPath(iniPath));
    return isSettingsFile(file.fileName()) && file.open(QIODevice::ReadOnly | QIODevice::Text) &&
           setStartupSituation(file, situationFile);
}
