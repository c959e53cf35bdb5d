#pragma once

#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>

class QSqlQueryModel;

/// The values of a row as an update line holds them, between semicolons. A value goes out as it is: one with a
/// semicolon falls apart when the line is read.

/// Any table, from the query's current row: each value as text with a ";" behind it. There is one empty value more
/// than the table has columns, so that the text ends in ";;".
QString rowAsText(const QSqlQuery& query);
/// For many rows of one query, whose columns were counted once.
QString rowAsText(const QSqlQuery& query, int columns);
/// A row of a model or a record in the same form, without the empty value.
QString rowFromModel(const QSqlQueryModel* model, int row);
QString rowFromRecord(const QSqlRecord& record);

/// Tables with binary columns, from the query's current row. Those go out as hexadecimal text; integers in base 10;
/// real numbers with six significant digits. No ";" at the end. A value of another type goes out as 0 or as nothing.
QString rowMOD(const QSqlQuery& query);
QString rowTEXTURE(const QSqlQuery& query);
QString rowLight(const QSqlQuery& query); ///< of the taxiway lights
QString rowPave(const QSqlQuery& query);
QString rowArcs(const QSqlQuery& query); ///< all four tables are written from the last one, as they have always been
