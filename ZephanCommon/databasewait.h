#pragma once

#include <QSqlDatabase>
#include <QString>

class QSqlQuery;

/// How long a statement waits for another program to let go of a database, in milliseconds. The window stands still
/// meanwhile.
constexpr int databaseWait = 1000;

/// For many statements with no message between them: when one of them has waited in vain, those behind it do not wait.
class OneWait
{
public:
    explicit OneWait(const QSqlDatabase& waitedFor);
    ~OneWait();
    OneWait(const OneWait&) = delete;
    OneWait& operator=(const OneWait&) = delete;

    /// Runs a statement on a query of this database; what QSqlQuery::exec returns.
    bool exec(QSqlQuery& query, const QString& statement);

private:
    void setWait(int milliseconds) const;

    QSqlDatabase database;
    bool waited = false;
};
