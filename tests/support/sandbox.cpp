// A simulator root in a temporary folder: folders, settings, databases and their rows.
#include "sandbox.h"

#include "cnavglobalvar.h"
#include "databaselayout.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace {

const QString rootInFolder = QStringLiteral("Games/AeoZephan");
const QString programFolder = QStringLiteral("Tools/Trajector");
const QString databaseFolder = QStringLiteral("SQL");
const QString settingsFile = QStringLiteral("trajector.ini");

void check(bool ok, const QString& what)
{
    if (!ok)
        qFatal("sandbox: %s", qPrintable(what));
}

QString sqlType(char type)
{
    switch (type) {
    case 'I':
        return QStringLiteral(" INTEGER");
    case 'D':
    case 'F':
        return QStringLiteral(" REAL");
    case 'C':
        return QStringLiteral(" TEXT");
    default:
        return {};
    }
}

/// The key column of a table in which an update replaces the row of the same key.
QString keyColumn(const QString& table)
{
    if (table == "APT" || table == "NAV" || table == "WPT")
        return QStringLiteral("ukey");
    return table == "SIDSTAR" ? QStringLiteral("skey") : QString();
}

QString createStatement(const TableLayout& table)
{
    QStringList columns;
    for (int i = 0; i < table.columnCount; ++i) {
        const ColumnDef& column = table.columns[i];
        const QString unique = column.code == keyColumn(table.name) ? QStringLiteral(" UNIQUE") : QString();
        columns << QStringLiteral("\"%1\"%2%3").arg(column.code, sqlType(column.type), unique);
    }
    return QStringLiteral("CREATE TABLE \"%1\" (%2)").arg(table.name, columns.join(", "));
}

QVector<QVariantList> run(const QSqlDatabase& database, const QString& statement, const QVariantList& values)
{
    QSqlQuery query(database);
    check(query.prepare(statement), statement + ": " + query.lastError().text());
    for (const QVariant& value : values)
        query.addBindValue(value);
    check(query.exec(), statement + ": " + query.lastError().text());
    QVector<QVariantList> rows;
    while (query.next()) {
        QVariantList row;
        for (int column = 0; column < query.record().count(); ++column)
            row << query.value(column);
        rows << row;
    }
    return rows;
}

Row over(Row defaults, const Row& given)
{
    for (auto column = given.begin(); column != given.end(); ++column)
        defaults.insert(column.key(), column.value());
    return defaults;
}

} // namespace

double arcSeconds(int degrees, int minutes, double seconds)
{
    const double size = std::abs(degrees) * 3600.0 + minutes * 60.0 + seconds;
    return degrees < 0 ? -size : size;
}

Sandbox::Sandbox(Databases databases) : previousDirectory(QDir::currentPath())
{
    check(folder.isValid(), "no temporary folder");
    for (const char* name :
         {"system", "Flightplan", "Saved Simulations", "Aircraft", "Tools/Trajector/Data", "Work", "SQL"})
        check(QDir().mkpath(path(name)), name);
    writeFile("AeoZephan.exe", "");
    writeFile("system/AeoZephan.ini",
              "[SQL]\nGENDB=SQL\nM3DDB=SQL\nOBJDB=SQL\nTXYDB=SQL\nWPTDB=SQL\nRTEDB=SQL\nOSMDB=SQL\n"
              "\n[UI]\nstartupSituation=Default.sit\n");
    check(QDir::setCurrent(path(programFolder)), programFolder);
    setSetting("directory/dirWork", path("Work"));
    if (databases == Databases::Made) {
        createDatabase(dbfile::gen, 0);
        createDatabase(dbfile::m3d, 3);
        createDatabase(dbfile::obj, 4);
        createDatabase(dbfile::txy, 1);
        createDatabase(dbfile::wpt, 0);
        createDatabase(dbfile::route, 0);
    }
}

Sandbox::~Sandbox()
{
    CNavGlobalVar::deleteInstance();
    for (const QString& name : QSqlDatabase::connectionNames()) {
        // Closed first: the program keeps a handle on the connection that it opened last.
        QSqlDatabase::database(name, false).close();
        QSqlDatabase::removeDatabase(name);
    }
    QDir::setCurrent(previousDirectory);
}

QString Sandbox::root() const
{
    return QDir(folder.path()).filePath(rootInFolder);
}

QString Sandbox::path(const QString& relative) const
{
    return QDir(root()).filePath(relative);
}

void Sandbox::writeFile(const QString& relative, const QByteArray& bytes) const
{
    check(QDir().mkpath(QFileInfo(path(relative)).path()), relative);
    QFile file(path(relative));
    check(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), relative);
}

QByteArray Sandbox::readFile(const QString& relative) const
{
    QFile file(path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Sandbox::hasFile(const QString& relative) const
{
    return QFileInfo(path(relative)).isFile();
}

QStringList Sandbox::filesIn(const QString& relative) const
{
    return QDir(path(relative)).entryList(QDir::Files, QDir::Name);
}

void Sandbox::removeFile(const QString& relative) const
{
    check(QFile::remove(path(relative)), relative);
}

void Sandbox::setSetting(const QString& key, const QVariant& value) const
{
    QSettings settings(QDir(path(programFolder)).filePath(settingsFile), QSettings::IniFormat);
    settings.setValue(key, value);
}

QVariant Sandbox::setting(const QString& key) const
{
    return QSettings(QDir(path(programFolder)).filePath(settingsFile), QSettings::IniFormat).value(key);
}

void Sandbox::removeSettings() const
{
    QSettings(QDir(path(programFolder)).filePath(settingsFile), QSettings::IniFormat).clear();
}

void Sandbox::createDatabase(const QString& file, int userVersion) const
{
    bool known = false;
    for (const DatabaseLayout& database : databaseLayouts()) {
        if (!file.startsWith(database.prefix))
            continue;
        known = true;
        for (const TableLayout& table : database.tables)
            sql(file, createStatement(table));
    }
    check(known, "no tables known for " + file);
    sql(file, QStringLiteral("PRAGMA user_version = %1").arg(userVersion));
}

QVector<QVariantList> Sandbox::sql(const QString& file, const QString& statement, const QVariantList& values) const
{
    // A second connection would meet "database is locked" while the program stands on a row.
    if (QSqlDatabase::contains(file))
        return run(QSqlDatabase::database(file), statement, values);

    const QString ownName = QStringLiteral("sandbox");
    QVector<QVariantList> rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", ownName);
        database.setDatabaseName(path(databaseFolder + '/' + file));
        check(database.open(), file);
        // A sandbox lives for one test: waiting for the disk would be most of its making.
        database.exec("PRAGMA synchronous = OFF");
        rows = run(database, statement, values);
    }
    QSqlDatabase::removeDatabase(ownName);
    return rows;
}

QVariant Sandbox::sqlValue(const QString& file, const QString& statement, const QVariantList& values) const
{
    const QVector<QVariantList> rows = sql(file, statement, values);
    return rows.isEmpty() ? QVariant() : rows.first().value(0);
}

void Sandbox::insertRow(const QString& file, const QString& table, const Row& row) const
{
    QStringList columns;
    QStringList places;
    for (const QString& column : row.keys()) {
        columns << QStringLiteral("\"%1\"").arg(column);
        places << QStringLiteral("?");
    }
    sql(file, QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)").arg(table, columns.join(", "), places.join(", ")),
        row.values());
}

void Sandbox::addAirport(const Row& row) const
{
    const QVariant key = row.value("ukey", "LFPO");
    insertRow(dbfile::gen, "APT",
              over({{"tile", 0},
                    {"ukey", key},
                    {"iden", key},
                    {"name", "PARIS ORLY"},
                    {"ctry", "FR"},
                    {"alat", arcSeconds(48, 43, 31.0)},
                    {"alon", arcSeconds(2, 21, 34.0)},
                    {"aele", 291}},
                   row));
}

void Sandbox::addRunway(const Row& row) const
{
    insertRow(dbfile::gen, "RWY",
              over({{"nseq", 1},
                    {"rapt", "LFPO"},
                    {"rlen", 7874},
                    {"rwid", 148},
                    {"rhid", "24"},
                    {"rhla", arcSeconds(48, 44, 0.0)},
                    {"rhlo", arcSeconds(2, 24, 0.0)},
                    {"rhht", 290},
                    {"rhhd", 243.5},
                    {"rlid", "06"},
                    {"rlla", arcSeconds(48, 43, 0.0)},
                    {"rllo", arcSeconds(2, 20, 0.0)},
                    {"rlht", 285},
                    {"rlhd", 63.5}},
                   row));
}

void Sandbox::addNavaid(const Row& row) const
{
    insertRow(dbfile::gen, "NAV",
              over({{"tile", 0},
                    {"ukey", "RBT"},
                    {"iden", "RBT"},
                    {"name", "RAMBOUILLET"},
                    {"nfrq", 114.7},
                    {"ctry", "FR"},
                    {"ntyp", 6},
                    {"nuse", 1},
                    {"nlat", arcSeconds(48, 39)},
                    {"nlon", arcSeconds(1, 59)},
                    {"nalt", 552}},
                   row));
}

void Sandbox::addWaypoint(const Row& row) const
{
    const QVariant key = row.value("ukey", "BAMES");
    insertRow(dbfile::wpt, "WPT",
              over({{"tile", 0},
                    {"ukey", key},
                    {"iden", key},
                    {"name", key},
                    {"ctry", "FR"},
                    {"wloc", 78},
                    {"wtyp", 0},
                    {"wuse", 1},
                    {"wlat", arcSeconds(48, 42)},
                    {"wlon", arcSeconds(3)},
                    {"walt", 0}},
                   row));
}

void Sandbox::addProcedureLeg(const Row& row) const
{
    insertRow(dbfile::route, "SIDSTAR",
              over({{"tile", 0},
                    {"skey", "1"},
                    {"sapt", "LFPO"},
                    {"strm", "BAMES1A"},
                    {"sqnm", 0},
                    {"styp", 0},
                    {"swid", "BAMES"},
                    {"swpt", 1},
                    {"salt", 5000},
                    {"slat", arcSeconds(48, 42)},
                    {"slon", arcSeconds(3)}},
                   row));
}

void Sandbox::addAirway(const Row& row) const
{
    insertRow(dbfile::route, "ATSROUTE",
              over({{"tile", 0},
                    {"akey", "UT158FR"},
                    {"aaid", "UT158"},
                    {"seqn", 1},
                    {"levl", 72},
                    {"nvk1", "BAMES"},
                    {"nvi1", "BAMES"},
                    {"nvc1", "FR"},
                    {"nvk2", "RBT"},
                    {"nvi2", "RBT"},
                    {"nvc2", "FR"},
                    {"lat1", arcSeconds(48, 42)},
                    {"lon1", arcSeconds(3)},
                    {"lat2", arcSeconds(48, 39)},
                    {"lon2", arcSeconds(1, 59)}},
                   row));
}

void Sandbox::addCountry(const QString& code, const QString& name) const
{
    insertRow(dbfile::gen, "CTY", {{"cuid", code}, {"cnam", name}});
}
