#include "demodatabase.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

DemoDatabase::DemoDatabase(const QString& path) : connection("read " + path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connection);
    database.setDatabaseName(path);
    database.setConnectOptions("QSQLITE_OPEN_READONLY");
    if (!database.open())
        qFatal("%s: %s", qPrintable(path), qPrintable(database.lastError().text()));
}

DemoDatabase::~DemoDatabase()
{
    QSqlDatabase::database(connection, false).close();
    QSqlDatabase::removeDatabase(connection);
}

QVector<QVariantList> DemoDatabase::rows(const QString& statement) const
{
    QSqlQuery query(QSqlDatabase::database(connection));
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    QVector<QVariantList> result;
    const int columns = query.record().count();
    while (query.next()) {
        QVariantList row;
        for (int column = 0; column < columns; ++column)
            row << query.value(column);
        result << row;
    }
    return result;
}

QVariant DemoDatabase::value(const QString& statement) const
{
    const QVector<QVariantList> result = rows(statement);
    return result.isEmpty() ? QVariant() : result.first().first();
}
