#include "keyedstatement.h"

#include <QRegularExpression>
#include <QSqlDriver>
#include <QVariant>

namespace {

/// Whether a text can be the name of a column, bare or quoted: no expression.
bool isName(const QString& text)
{
    static const QRegularExpression name(
        QRegularExpression::anchoredPattern(QStringLiteral(R"([\w$.]+|"[\w$.]+"|\[[\w$.]+\]|`[\w$.]+`)")),
        QRegularExpression::UseUnicodePropertiesOption);
    return name.match(text).hasMatch();
}

/// The column behind its table's name. Alone, a quoted name that is no column is a text to SQLite, and CURRENT_DATE the
/// day; here both are columns that are not there.
QString qualified(const KeyedRows& rows)
{
    return rows.table + QLatin1Char('.') + rows.column.section(QLatin1Char('.'), -1);
}

/// Whether SQLite finds the column, told from a statement that is prepared and never run.
bool isColumn(QSqlQuery& query, const QString& table, const QString& qualifiedName)
{
    return query.prepare(QStringLiteral("SELECT %1 FROM %2").arg(qualifiedName, table));
}

/// Whether `COLUMN = "KEY"` is true for the rows with this key and no others, whatever SQLite reads in the key.
bool meetsItsRows(QSqlQuery& query, const KeyedRows& rows)
{
    query.prepare(QStringLiteral(R"(SELECT count(*) FROM %1 WHERE coalesce(%2 = "%3", 0) <> coalesce(%4 = ?, 0))")
                      .arg(rows.table, rows.column, rows.key, qualified(rows)));
    query.addBindValue(QString(rows.key).replace(QLatin1String("\"\""), QLatin1String("\"")));
    return query.exec() && query.next() && query.value(0).toInt() == 0;
}

bool isSound(QSqlQuery& query, const KeyedRows& rows)
{
    if (!isName(rows.column) || !staysQuoted(rows.key, QLatin1Char('"')) ||
        !isColumn(query, rows.table, qualified(rows))) {
        return false;
    }
    // Rows are compared only for a key that is a column's name: without an index this reads the whole table.
    const QString keyAsColumn = QStringLiteral("%1.\"%2\"").arg(rows.table, rows.key);
    return !isColumn(query, rows.table, keyAsColumn) || meetsItsRows(query, rows);
}

} // namespace

bool staysQuoted(const QString& text, QChar quote)
{
    int run = 0; // quotes in a row
    for (const QChar character : text) {
        if (character == quote) {
            ++run;
        } else if (run % 2 != 0) {
            return false;
        } else {
            run = 0;
        }
    }
    return run % 2 == 0;
}

bool runKeyed(QSqlQuery& query, const QString& statement, bool sound)
{
    if (sound) {
        return query.exec(statement);
    }
    query.prepare(statement);
    return false;
}

bool runDeletion(QSqlQuery& query, const QString& statement, const KeyedRows& rows)
{
    // A closed database gives its words to a statement that is run only.
    return runKeyed(query, statement, !query.driver()->isOpen() || isSound(query, rows));
}
