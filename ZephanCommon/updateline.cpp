// The grammar of an update line, shared by whoever reads or writes one.

#include "updateline.h"

#include <QDataStream>
#include <QIODevice>

namespace {

constexpr QLatin1Char separator(';');
constexpr int longestLine = 64 * 1024 * 1024;

} // namespace

QByteArray readUpdateLine(QIODevice& device)
{
    constexpr int pieceSize = 4096;
    QByteArray line;
    char piece[pieceSize];
    qint64 taken = 0;
    do {
        taken = device.readLine(piece, pieceSize);
        if (taken > 0) {
            line.append(piece, static_cast<int>(taken));
        }
    } while (taken > 0 && !line.endsWith('\n') && isWholeLine(line));
    return line;
}

bool isWholeLine(const QByteArray& line)
{
    return line.size() < longestLine;
}

QStringList splitUpdateLine(const QByteArray& line)
{
    // From the character pointer: the text ends at the first NUL byte.
    const QString text = QString::fromLatin1(line.trimmed().constData());
    return text.split(separator, Qt::KeepEmptyParts);
}

QString updateField(const QStringList& fields, int number)
{
    const bool present = number >= 0 && number < fields.size() && !fields.at(number).isNull();
    return present ? fields.at(number) : QStringLiteral("");
}

QString joinUpdateLine(const QStringList& fields)
{
    return fields.join(separator);
}

QByteArray decodeHexadecimal(const QString& digits, bool latin1)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    if (latin1) {
        stream << digits.toLatin1();
    } else {
        stream << digits;
    }
    return QByteArray::fromHex(content);
}

QString composeRowLine(const QString& database, const QString& table, const QStringList& values)
{
    return (QStringList{database, table, QStringLiteral("+")} + values).join(separator);
}

QString composeDeleteLine(const QString& database, const QString& table, const QString& keyColumn, const QString& key)
{
    return QStringList{database, table, QStringLiteral("-"), keyColumn, key}.join(separator);
}
