#pragma once

#include "databaselayout.h"
#include "updatestatements.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariantList>

/// Makes one new database file and fills it in one transaction. The rows go in by the statements of the update files,
/// each prepared once.
///
/// After the first failure `error` holds its text and nothing more is done.
class DatabaseWriter
{
public:
    /// Creates the file, its tables with their keys, and the schema version. Replaces nothing: the file must be new.
    DatabaseWriter(const QString& path, const DatabaseLayout& layout);
    ~DatabaseWriter();
    DatabaseWriter(const DatabaseWriter&) = delete;
    DatabaseWriter& operator=(const DatabaseWriter&) = delete;

    /// Writes a row from the fields of an update line.
    void writeUpdate(const UpdateStatement& statement, const QStringList& fields);
    /// Writes a row of a table from all its values in the order of its columns.
    void writeRow(const QString& table, const QStringList& values);
    /// Makes the indexes that serve lookups other than by key, and ends the transaction.
    void finish();

    const DatabaseLayout& layout() const;
    QString error() const;

private:
    void execute(const QString& statement);
    void execute(const QString& statement, const QVariantList& values);
    void createTable(const TableLayout& table);

    const DatabaseLayout& databaseLayout;
    QString connection;
    QHash<QString, QSqlQuery> prepared;
    QString firstError;
};
