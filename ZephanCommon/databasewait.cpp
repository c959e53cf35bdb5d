#include "databasewait.h"

#include <QSqlError>
#include <QSqlQuery>

namespace {

/// SQLite's code for a lock of another program, in the low byte of its extended codes.
bool isBusy(const QSqlError& error)
{
    constexpr int busy = 5;
    constexpr int lowByte = 0xFF;
    return (error.nativeErrorCode().toInt() & lowByte) == busy;
}

} // namespace

OneWait::OneWait(const QSqlDatabase& waitedFor) : database(waitedFor) {}

OneWait::~OneWait()
{
    if (waited) {
        setWait(databaseWait);
    }
}

bool OneWait::exec(QSqlQuery& query, const QString& statement)
{
    const bool done = query.exec(statement);
    if (!done && !waited && isBusy(query.lastError())) {
        waited = true;
        setWait(0);
    }
    return done;
}

void OneWait::setWait(int milliseconds) const
{
    QSqlQuery(database).exec(QStringLiteral("PRAGMA busy_timeout = %1").arg(milliseconds));
}
