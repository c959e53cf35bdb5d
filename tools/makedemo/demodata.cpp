// Fills the databases from the update files and tables that are compiled into this library.

#include "demodata.h"

#include "databasewriter.h"
#include "inventedplaces.h"
#include "inventedrows.h"
#include "updateline.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <memory>
#include <vector>

namespace {

const QString updatesFolder = QStringLiteral(":/demo/updates");
const QString tablesFolder = QStringLiteral(":/demo/tables");

using Writers = std::vector<std::unique_ptr<DatabaseWriter>>;

DatabaseWriter* writerOfGroup(const Writers& writers, const QString& group)
{
    for (const auto& writer : writers)
        if (writer->layout().group == group)
            return writer.get();
    return nullptr;
}

DatabaseWriter* writerOfTable(const Writers& writers, const QString& table)
{
    for (const auto& writer : writers)
        for (const TableLayout& layout : writer->layout().tables)
            if (layout.name == table)
                return writer.get();
    return nullptr;
}

/// Keys that the demonstration's own rows have, and how many rows of the table there are.
struct OwnRows
{
    QSet<QString> keys;
    int count = 0;
};

/// What the update files held of the tables that can be filled up.
struct OwnTables
{
    OwnRows airports;
    OwnRows navaids;
    OwnRows waypoints;
};

void note(OwnTables& own, const QString& table, const QStringList& fields)
{
    struct Filled
    {
        const char* table;
        OwnRows OwnTables::*rows;
        int key;
    };
    static const Filled filled[] = {{"APT", &OwnTables::airports, airportKey},
                                    {"NAV", &OwnTables::navaids, navaidKey},
                                    {"WPT", &OwnTables::waypoints, waypointKey}};
    for (const Filled& each : filled) {
        if (table != QLatin1String(each.table))
            continue;
        OwnRows& rows = own.*each.rows;
        rows.keys.insert(updateField(fields, updatefield::firstValue + each.key));
        rows.count = rows.keys.size();
    }
}

/// Carries out one update file. The text of what went wrong, or an empty one.
QString applyUpdates(const QString& path, const Writers& writers, OwnTables& own)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    while (!file.atEnd()) {
        const QStringList fields = splitUpdateLine(file.readLine());
        const QString group = updateField(fields, updatefield::database);
        const QString table = updateField(fields, updatefield::table);
        const UpdateStatement* statement = findUpdateStatement(group, table);
        DatabaseWriter* writer = writerOfGroup(writers, group);
        if (statement == nullptr || writer == nullptr || fields.size() <= statement->lastField)
            return QStringLiteral("%1: not a row of a known table: %2").arg(path, fields.join(QLatin1Char(';')));
        writer->writeUpdate(*statement, fields);
        note(own, table, fields);
    }
    return {};
}

/// Fills a table that has no update line that works: the file bears its name and holds all values of a row a line.
QString applyTable(const QString& path, const Writers& writers)
{
    QFile file(path);
    const QString table = QFileInfo(path).baseName();
    DatabaseWriter* writer = writerOfTable(writers, table);
    if (writer == nullptr || !file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: cannot be read, or no such table").arg(path);
    while (!file.atEnd())
        writer->writeRow(table, splitUpdateLine(file.readLine()));
    return {};
}

void inventAirports(const Writers& writers, int count, int frenchPercent)
{
    DatabaseWriter* general = writerOfGroup(writers, QStringLiteral("GEN"));
    for (int number = 0; number < count; ++number) {
        const InventedAirport invented = inventedAirport(number, isFrench(number, frenchPercent));
        general->writeRow(QStringLiteral("APT"), invented.airport);
        for (const QStringList& runway : invented.runways)
            general->writeRow(QStringLiteral("RWY"), runway);
    }
}

using Invent = QStringList (*)(int number, bool french);

/// Adds rows until the table has `wanted`, passing over those whose key the demonstration's own rows have.
void inventRows(DatabaseWriter& writer, const QString& table, int keyColumn, Invent invent, const OwnRows& own,
                int wanted, int frenchPercent)
{
    int count = own.count;
    for (int number = 0; count < wanted; ++number) {
        const QStringList values = invent(number, isFrench(number, frenchPercent));
        if (own.keys.contains(values.at(keyColumn)))
            continue;
        writer.writeRow(table, values);
        ++count;
    }
}

QString fill(const Writers& writers, const DemoSize& size)
{
    OwnTables own;
    for (const QString& name : QDir(updatesFolder).entryList(QDir::Files, QDir::Name)) {
        QString error = applyUpdates(updatesFolder + QLatin1Char('/') + name, writers, own);
        if (!error.isEmpty())
            return error;
    }
    for (const QString& name : QDir(tablesFolder).entryList(QDir::Files, QDir::Name)) {
        QString error = applyTable(tablesFolder + QLatin1Char('/') + name, writers);
        if (!error.isEmpty())
            return error;
    }
    inventAirports(writers, size.airports - own.airports.count, size.frenchPercent);
    inventRows(*writerOfGroup(writers, QStringLiteral("GEN")), QStringLiteral("NAV"), navaidKey, inventedNavaid,
               own.navaids, size.navaids, size.frenchPercent);
    inventRows(*writerOfGroup(writers, QStringLiteral("WPT")), QStringLiteral("WPT"), waypointKey, inventedWaypoint,
               own.waypoints, size.waypoints, size.frenchPercent);
    return {};
}

} // namespace

QString writeDemoDatabases(const QDir& folder, const DemoSize& size)
{
    Q_INIT_RESOURCE(demo);
    Writers writers;
    for (const DatabaseLayout& layout : databaseLayouts())
        writers.push_back(
            std::make_unique<DatabaseWriter>(folder.filePath(layout.prefix + QStringLiteral(".db")), layout));
    QString error = fill(writers, size);
    if (!error.isEmpty())
        return error;
    for (const auto& writer : writers) {
        writer->finish();
        if (!writer->error().isEmpty())
            return writer->error();
    }
    return {};
}
