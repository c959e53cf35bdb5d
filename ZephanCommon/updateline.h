#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QIODevice;

/// One line of an update file: one database operation as fields between semicolons. There is no quoting, so that no
/// value can hold a semicolon. Fields past the ones that a table takes are harmless.
///
///   GEN;NAV;+;65705;ABB4FR;ABB;...   writes a row: database, table, "+", the values in the order of the statement
///   GEN;NAV;-;ukey;ABB4FR            deletes rows: database, table, "-", key column, key

/// Numbers of the fields.
namespace updatefield {
constexpr int database = 0;
constexpr int table = 1;
constexpr int action = 2;
constexpr int firstValue = 3; ///< of a line that writes a row
constexpr int keyColumn = 3;  ///< of a line that deletes
constexpr int key = 4;        ///< of a line that deletes; empty means the whole table
} // namespace updatefield

/// Reads a raw line with its end. Of a line that is longer than any of an update file (64 MiB) it reads that much and
/// no more, which `isWholeLine` tells: such a file is no update file, and is not to fill the memory. Empty at the end
/// of the device and when it cannot be read.
QByteArray readUpdateLine(QIODevice& device);
/// False for the head of a line that is too long.
bool isWholeLine(const QByteArray& line);

/// The fields of a raw line: white space is taken from both ends, the text ends at the first NUL byte, and each byte
/// is one character, whatever wrote the file. Never empty: an empty line has one empty field.
QStringList splitUpdateLine(const QByteArray& line);

/// A field, or an empty text (never a null one, which a database would take for NULL) where the line has none.
QString updateField(const QStringList& fields, int number);

/// The text that was split into these fields.
QString joinUpdateLine(const QStringList& fields);

/// The bytes that a field of hexadecimal text stands for, as the databases of the suite hold them.
///
/// The digits, as a QString or one byte each, take a detour: they go into a data stream, and all of the stream's
/// content is decoded. What is no digit is skipped, but a byte of the stream's own length prefix that is the code of a
/// digit counts, and stands in front as one digit more. So a text of 24 digits gives 13 bytes instead of 12, a 0 first.
QByteArray decodeHexadecimal(const QString& digits, bool latin1);

/// The line that writes a row, without a line end and with nothing behind the last value.
QString composeRowLine(const QString& database, const QString& table, const QStringList& values);

/// The line that deletes the rows with a key, without a line end.
QString composeDeleteLine(const QString& database, const QString& table, const QString& keyColumn, const QString& key);
