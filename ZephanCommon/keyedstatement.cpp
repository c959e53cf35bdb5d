#include "keyedstatement.h"

#include <QRegularExpression>

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

bool isColumnName(const QString& text)
{
    static const QRegularExpression name(
        QRegularExpression::anchoredPattern(QStringLiteral(R"([\w$.]+|"[\w$.]+"|\[[\w$.]+\]|`[\w$.]+`)")),
        QRegularExpression::UseUnicodePropertiesOption);
    return name.match(text).hasMatch();
}

bool runKeyed(QSqlQuery& query, const QString& statement, bool sound)
{
    if (sound) {
        return query.exec(statement);
    }
    query.prepare(statement);
    return false;
}
