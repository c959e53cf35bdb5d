#pragma once

#include "cglobalvar.h"
#include "datadictionary.h"

#include <QString>

#include <vector>

/// Which database file holds which table, as data: the search for the files walks it, and an empty set of databases
/// can be made out of it.

/// Type of a column that no definition settles: whatever SQLite stores.
constexpr char columnTypeOpen = ' ';

/// One table of a database, its columns in their order. There are two tables named "Light", one in TXY and one in OBJ.
struct TableLayout
{
    QString name;             ///< in SQL
    const ColumnDef* columns; ///< static data; a name can be a word of SQL ("desc"): quote it in statements
    int columnCount;
};

/// One of the six database files.
struct DatabaseLayout
{
    QString prefix;              ///< start of the file's base name
    QDir CGlobalVar::*folder;    ///< where the file is searched
    QString CGlobalVar::*dbName; ///< takes the file's name, which is also the name of the connection
    int version;                 ///< expected in SQLite's user_version, compared for equality
    QString group;               ///< the first field of an update line
    std::vector<TableLayout> tables;
};

/// The six, in the order in which they are searched and opened.
const std::vector<DatabaseLayout>& databaseLayouts();
