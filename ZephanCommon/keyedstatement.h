#pragma once

#include <QSqlQuery>
#include <QString>

/// Keys go into statements between quotes as they are, and many come from files of unknown hands. A quote in a key
/// breaks its statement; where what comes out happens to be SQL, it could delete other rows than the key's or count for
/// ever. Without any quote of its own, a key between double quotes is no text but a column where the table has one of
/// that name.

/// Whether a text stays inside quotes of this kind that stand around it: each such quote in it is doubled.
bool staysQuoted(const QString& text, QChar quote);

/// Runs a statement whose keys are sound. One with a broken key is prepared, for the driver's words in `lastError`, and
/// never run. False on failure.
bool runKeyed(QSqlQuery& query, const QString& statement, bool sound);

/// The rows of a table that have a key in a column.
struct KeyedRows
{
    QString table;
    QString column; ///< as it stands in the statement: bare or quoted
    QString key;    ///< as it stands between the double quotes of the statement
};

/// Runs a statement that deletes these rows by `COLUMN = "KEY"`. One that would delete any others, or leave some of
/// them, is not run, as with `runKeyed`. False on failure.
bool runDeletion(QSqlQuery& query, const QString& statement, const KeyedRows& rows);
