#pragma once

#include "sandbox.h"

#include <QString>
#include <QStringList>

/// Writes rows of stored procedures for a test. A row belongs to the airport FR001 of the plan window's world unless
/// told otherwise, and takes the next key.
class ProcedureRows
{
public:
    explicit ProcedureRows(const Sandbox& world) : sandbox(world) {}

    /// Removes all rows.
    void clear() const
    {
        sandbox.sql(dbfile::route, "DELETE FROM SIDSTAR");
    }

    void add(Row row)
    {
        row.insert("skey", QString("K%1").arg(++count, 3, 10, QChar('0')));
        if (!row.contains("sapt"))
            row.insert("sapt", "FR001");
        sandbox.addProcedureLeg(row);
    }

    /// A whole procedure of the points named, numbered 10, 20, 30. Type 1 is a STAR, 2 a SID.
    void addProcedure(const QString& name, int type, const QStringList& points)
    {
        for (int i = 0; i < points.size(); ++i)
            add({{"strm", name}, {"sqnm", (i + 1) * 10}, {"styp", type}, {"swid", points[i]}});
    }

private:
    const Sandbox& sandbox;
    int count = 0;
};
