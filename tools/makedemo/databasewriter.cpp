// New database files as the simulator would make them: types and keys out of the record of the schema.

#include "databasewriter.h"

#include "updateline.h"

#include <QSqlError>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace {

/// Which columns make a table's key, so that an update replaces the row of the same key, and which others are looked
/// up. Lists are comma separated; a key of several columns also serves lookups by its first one.
struct TableKeys
{
    const char* group;
    const char* table;
    const char* key;
    const char* lookups;
};

const TableKeys tableKeys[] = {
    {"GEN", "APT", "ukey", "iden,name"},
    {"GEN", "COM", "ckey", "capt,cnam"},
    // A near search asks for the runways of each airport found: LIKE goes by an index only where that has no case.
    {"GEN", "RWY", "rapt,nseq", "rapt COLLATE NOCASE"},
    {"GEN", "ILS", "ikey", "iapt,iils,name"},
    {"GEN", "NAV", "ukey", "iden,name"},
    {"GEN", "CTY", "cuid", ""},
    {"GEN", "STATE", "skey", ""},
    {"WPT", "WPT", "ukey", "iden,name"},
    {"RTE", "ATSROUTE", "akey", "aaid,nvi1,nvi2"},
    {"RTE", "SIDSTAR", "skey", "sapt,strm"},
    {"RTE", "BDRY", "bkey,bseg", ""},
    {"M3D", "MOD", "name", ""},
    {"M3D", "TEXTURE", "xname", ""},
    {"M3D", "SCN", "key", ""},
    {"OBJ", "OBJ", "", "mday,scn"},
    {"OBJ", "FNM", "key", "scene"},
    {"OBJ", "Light", "", ""},
    {"TXY", "Arcs", "aKey", ""},
    {"TXY", "Node", "aKey,Ident", ""},
    {"TXY", "Pave", "", "aKey"},
    {"TXY", "Light", "", "aKey"},
};

const TableKeys* keysOf(const QString& group, const QString& table)
{
    const auto found = std::find_if(std::begin(tableKeys), std::end(tableKeys), [&](const TableKeys& keys) {
        return group == QLatin1String(keys.group) && table == QLatin1String(keys.table);
    });
    return found == std::end(tableKeys) ? nullptr : found;
}

QString sqlType(const ColumnDef& column)
{
    switch (column.type) {
    case 'I':
        return QStringLiteral("INTEGER");
    case 'C':
        return column.width > 0 ? QStringLiteral("VARCHAR(%1)").arg(column.width) : QStringLiteral("TEXT");
    case 'D':
        return QStringLiteral("DOUBLE");
    case 'F':
        return QStringLiteral("FLOAT");
    case 'B':
        return QStringLiteral("BLOB");
    default:
        return {}; // whatever is stored
    }
}

QString quoted(const QString& name)
{
    return QLatin1Char('"') + name + QLatin1Char('"'); // "desc" and "key" are words of SQL
}

QString quotedList(const char* names)
{
    QStringList list = QString::fromLatin1(names).split(QLatin1Char(','), Qt::SkipEmptyParts);
    std::transform(list.begin(), list.end(), list.begin(), quoted);
    return list.join(QLatin1Char(','));
}

} // namespace

DatabaseWriter::DatabaseWriter(const QString& path, const DatabaseLayout& layout)
    : databaseLayout(layout), connection(QStringLiteral("demo ") + path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    database.setDatabaseName(path);
    if (!database.open()) {
        firstError = QStringLiteral("%1: %2").arg(path, database.lastError().text());
        return;
    }
    // A file that is not finished is of no use: no journal is kept for it.
    execute(QStringLiteral("PRAGMA journal_mode = OFF"));
    execute(QStringLiteral("PRAGMA synchronous = OFF"));
    execute(QStringLiteral("PRAGMA user_version = %1").arg(layout.version));
    execute(QStringLiteral("BEGIN"));
    for (const TableLayout& table : layout.tables)
        createTable(table);
}

DatabaseWriter::~DatabaseWriter()
{
    prepared.clear();
    QSqlDatabase::database(connection, false).close();
    QSqlDatabase::removeDatabase(connection);
}

const DatabaseLayout& DatabaseWriter::layout() const
{
    return databaseLayout;
}

QString DatabaseWriter::error() const
{
    return firstError;
}

void DatabaseWriter::createTable(const TableLayout& table)
{
    QStringList parts;
    for (int i = 0; i < table.columnCount; ++i)
        parts << (quoted(table.columns[i].code) + QLatin1Char(' ') + sqlType(table.columns[i])).trimmed();
    const TableKeys* keys = keysOf(databaseLayout.group, table.name);
    if (keys != nullptr && *keys->key != '\0')
        parts << QStringLiteral("PRIMARY KEY (%1)").arg(quotedList(keys->key));
    execute(QStringLiteral("CREATE TABLE %1 (%2)").arg(quoted(table.name), parts.join(QLatin1String(", "))));
}

void DatabaseWriter::writeUpdate(const UpdateStatement& statement, const QStringList& fields)
{
    QVariantList values;
    values.reserve(statement.columns);
    for (int field = updatefield::firstValue; field <= statement.lastField; ++field)
        values << updateField(fields, field);
    for (const HexadecimalField& blob : statement.hexadecimal)
        values[blob.field - updatefield::firstValue] = QByteArray::fromHex(updateField(fields, blob.field).toLatin1());
    execute(QString(statement.text), values);
}

void DatabaseWriter::writeRow(const QString& table, const QStringList& values)
{
    QVariantList bound;
    QStringList places;
    for (const QString& value : values) {
        bound << (value.isNull() ? QStringLiteral("") : value); // an empty text, as an update line gives it
        places << QStringLiteral("?");
    }
    execute(QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(quoted(table), places.join(QLatin1Char(','))), bound);
}

void DatabaseWriter::finish()
{
    for (const TableLayout& table : databaseLayout.tables) {
        const TableKeys* keys = keysOf(databaseLayout.group, table.name);
        if (keys == nullptr)
            continue;
        for (const QString& lookup : QString::fromLatin1(keys->lookups).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            const QString column = lookup.section(QLatin1Char(' '), 0, 0);
            execute(QStringLiteral("CREATE INDEX %1 ON %2 (%3)")
                        .arg(quoted(table.name + QLatin1Char('_') + column), quoted(table.name), lookup));
        }
    }
    prepared.clear();
    execute(QStringLiteral("COMMIT"));
}

void DatabaseWriter::execute(const QString& statement)
{
    if (!firstError.isEmpty())
        return;
    QSqlQuery query(QSqlDatabase::database(connection));
    if (!query.exec(statement))
        firstError = QStringLiteral("%1: %2").arg(statement, query.lastError().text());
}

void DatabaseWriter::execute(const QString& statement, const QVariantList& values)
{
    if (!firstError.isEmpty())
        return;
    auto query = prepared.find(statement);
    if (query == prepared.end()) {
        query = prepared.insert(statement, QSqlQuery(QSqlDatabase::database(connection)));
        if (!query->prepare(statement)) {
            firstError = QStringLiteral("%1: %2").arg(statement, query->lastError().text());
            return;
        }
    }
    for (int position = 0; position < values.size(); ++position)
        query->bindValue(position, values.at(position));
    if (!query->exec())
        firstError = QStringLiteral("%1: %2").arg(statement, query->lastError().text());
}
