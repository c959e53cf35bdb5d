#pragma once

#include <QSqlQuery>
#include <QString>

/// Keys go into statements between quotes as they are, and many come from files of unknown hands. A quote in a key
/// breaks its statement; where what comes out happens to be SQL, it could delete other rows than the key's or count for
/// ever.

/// Whether a text stays inside quotes of this kind that stand around it: each such quote in it is doubled.
bool staysQuoted(const QString& text, QChar quote);

/// Whether a text can be the name of a column, bare or quoted: no expression.
bool isColumnName(const QString& text);

/// Runs a statement whose keys are sound. One with a broken key is prepared, for the driver's words in `lastError`, and
/// never run. False on failure.
bool runKeyed(QSqlQuery& query, const QString& statement, bool sound);
