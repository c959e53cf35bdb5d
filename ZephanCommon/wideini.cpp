#include "wideini.h"

#include "inivalues.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace {

bool isHexDigit(QChar character)
{
    return (character >= QLatin1Char('0') && character <= QLatin1Char('9')) ||
           (character.toUpper() >= QLatin1Char('A') && character.toUpper() <= QLatin1Char('F'));
}

/// Latin-1, with "\x" and a number for every other character: the reader takes all hexadecimal digits that follow, so
/// that one behind a number has to be a number as well.
QByteArray escaped(const QString& text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    bool behindNumber = false;
    for (const QChar character : text) {
        behindNumber = character.unicode() > 0xFF || (behindNumber && isHexDigit(character));
        if (behindNumber) {
            bytes += "\\x" + QByteArray::number(character.unicode(), 16);
        } else {
            bytes += character.toLatin1();
        }
    }
    return bytes;
}

} // namespace

QTextCodec* wideCodec(const QByteArray& start)
{
    if (start.size() < 2) {
        return nullptr;
    }
    if (start.startsWith("\xFF\xFE") || start.at(1) == '\0') {
        return QTextCodec::codecForName("UTF-16LE");
    }
    return start.startsWith("\xFE\xFF") || start.at(0) == '\0' ? QTextCodec::codecForName("UTF-16BE") : nullptr;
}

QByteArray settingsBytes(const QByteArray& ini)
{
    const QTextCodec* codec = wideCodec(ini);
    return codec != nullptr ? escaped(codec->toUnicode(ini)) : ini;
}

bool isSettingsFile(const QString& path)
{
    constexpr qint64 mostBytes = 4LL * 1024 * 1024;
    const QFileInfo file(path);
    return file.isFile() && file.size() <= mostBytes;
}

ReadableIni::ReadableIni(const QString& path) : readable(path)
{
    if (!QFileInfo::exists(path)) {
        return;
    }
    QFile file(path);
    const bool taken = isSettingsFile(path) && file.open(QIODevice::ReadOnly);
    const QByteArray bytes = taken ? file.readAll() : QByteArray();
    const QByteArray understood = withHarmlessValues(settingsBytes(bytes));
    if (taken && understood == bytes) {
        return;
    }
    const bool copied = copy.open() && copy.write(understood) == understood.size() && copy.flush();
    readable = copied ? copy.fileName() : QString();
}

QString ReadableIni::path() const
{
    return readable;
}
