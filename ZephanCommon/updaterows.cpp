// Rows as the values of update lines.

#include "updaterows.h"

#include <QSqlQueryModel>
#include <QStringList>
#include <QVariant>

#include <initializer_list>

namespace {

constexpr QLatin1Char separator(';');

QString text(const QVariant& value)
{
    return value.toString();
}

QString integer(const QVariant& value)
{
    return QString::number(value.toInt());
}

QString real(const QVariant& value)
{
    return QStringLiteral("%1").arg(value.toDouble());
}

QString hexadecimal(const QVariant& value)
{
    return QString::fromLatin1(value.toByteArray().toHex());
}

struct TypedColumn
{
    int number;
    QString (*write)(const QVariant& value);
};

/// Joined, not filled into a format: a value that holds a "%1" stays what it is.
QString typedRow(const QSqlQuery& query, std::initializer_list<TypedColumn> columns)
{
    QStringList values;
    for (const TypedColumn& column : columns) {
        values << column.write(query.value(column.number));
    }
    return values.join(separator);
}

} // namespace

QString rowAsText(const QSqlQuery& query, int columns)
{
    QString row;
    for (int column = 0; column < columns; ++column) {
        row += query.value(column).toString() + separator;
    }
    return row + separator; // the lines of whole rows end in an empty value
}

QString rowAsText(const QSqlQuery& query)
{
    return rowAsText(query, query.record().count());
}

QString rowFromModel(const QSqlQueryModel* model, int row)
{
    const QSqlRecord record = model->record(row);
    QString values;
    for (int column = 0; column < model->columnCount(); ++column) {
        values += record.value(column).toString() + separator;
    }
    return values;
}

QString rowFromRecord(const QSqlRecord& record)
{
    QString values;
    for (int column = 0; column < record.count(); ++column) {
        values += record.value(column).toString() + separator;
    }
    return values;
}

QString rowMOD(const QSqlQuery& query)
{
    return typedRow(query, {{0, text},
                            {1, integer},
                            {2, integer},
                            {3, text},
                            {4, real},
                            {5, real},
                            {6, integer},
                            {7, integer},
                            {8, integer},
                            {9, hexadecimal},
                            {10, hexadecimal},
                            {11, hexadecimal},
                            {12, hexadecimal}});
}

QString rowTEXTURE(const QSqlQuery& query)
{
    return typedRow(query, {{0, text}, {1, integer}, {2, integer}, {3, hexadecimal}});
}

QString rowLight(const QSqlQuery& query)
{
    return typedRow(query, {{0, text},
                            {1, integer},
                            {2, integer},
                            {3, integer},
                            {4, integer},
                            {5, integer},
                            {6, integer},
                            {7, hexadecimal}});
}

QString rowPave(const QSqlQuery& query)
{
    return typedRow(query, {{0, text}, {1, integer}, {2, integer}, {3, integer}, {4, hexadecimal}});
}

QString rowArcs(const QSqlQuery& query)
{
    return typedRow(query, {{0, text},
                            {1, integer},
                            {8, hexadecimal},
                            {3, integer},
                            {8, hexadecimal},
                            {5, integer},
                            {8, hexadecimal},
                            {7, integer},
                            {8, hexadecimal}});
}
