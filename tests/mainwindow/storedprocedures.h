#pragma once

#include "sandbox.h"

#include <QString>
#include <QStringList>
#include <QTreeWidget>

/// Writes rows of stored procedures for a test. A row belongs to the airport FR001 of the plan window's world unless
/// told otherwise, and takes the next key.
class StoredProcedures
{
public:
    explicit StoredProcedures(const Sandbox& world) : sandbox(world) {}

    /// Removes all rows. The next key is the first one again, "K001".
    void clear()
    {
        sandbox.sql(dbfile::route, "DELETE FROM SIDSTAR");
        count = 0;
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

    /// All rows in the order in which they came: the values of a row between semicolons, as the database holds them.
    QStringList stored() const
    {
        QStringList rows;
        for (const QVariantList& row : sandbox.sql(dbfile::route, "SELECT * FROM SIDSTAR ORDER BY rowid")) {
            QStringList values;
            for (const QVariant& value : row)
                values << value.toString();
            rows << values.join(';');
        }
        return rows;
    }

    /// The names of all procedures in name order, with a blank between them.
    QString names() const
    {
        QStringList found;
        for (const QVariantList& row : sandbox.sql(dbfile::route, "SELECT DISTINCT strm FROM SIDSTAR ORDER BY strm"))
            found << row.first().toString();
        return found.join(' ');
    }

private:
    const Sandbox& sandbox;
    int count = 0;
};

/// The procedures of a tree with the identities of their points in brackets: "ORLY1[LFPO BAMES] ORLY2[LFPO]".
inline QString outline(const QTreeWidget& tree)
{
    QStringList found;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* top = tree.topLevelItem(i);
        QStringList points;
        for (int row = 0; row < top->childCount(); ++row)
            points << top->child(row)->text(1);
        found << QString("%1[%2]").arg(top->text(0), points.join(' '));
    }
    return found.join(' ');
}
