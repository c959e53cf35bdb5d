#pragma once

#include <QString>
#include <QVariantList>
#include <QVector>

/// Reads database files of a demonstration simulator through a connection of its own.
class DemoDatabase
{
public:
    explicit DemoDatabase(const QString& path);
    ~DemoDatabase();
    DemoDatabase(const DemoDatabase&) = delete;
    DemoDatabase& operator=(const DemoDatabase&) = delete;

    /// The rows of a statement. A statement that fails ends the test program with its text.
    QVector<QVariantList> rows(const QString& statement) const;
    /// The first value of the first row; invalid without a row.
    QVariant value(const QString& statement) const;

private:
    QString connection;
};
