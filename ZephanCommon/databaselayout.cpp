// Which file holds which table. The tables that have no definition are known by their columns' names only.

#include "databaselayout.h"

namespace {

ColumnDef openColumn(const char* code, int number)
{
    return {QLatin1String(code), columnTypeOpen, 0, QString(), number};
}

const ColumnDef columnsArcs[] = {
    openColumn("aKey", 0),    openColumn("dim1", 1),    openColumn("tkoEdge", 2),
    openColumn("dim2", 3),    openColumn("tkoPath", 4), openColumn("dim3", 5),
    openColumn("lndEdge", 6), openColumn("dim4", 7),    openColumn("lndPath", 8),
};

const ColumnDef columnsNode[] = {
    openColumn("aKey", 0), openColumn("Ident", 1), openColumn("Lat", 2),    openColumn("Lon", 3), openColumn("Alt", 4),
    openColumn("rwid", 5), openColumn("type", 6),  openColumn("Sector", 7), openColumn("rfu", 8),
};

const ColumnDef columnsSCN[] = {
    openColumn("key", 0),
    openColumn("Type", 1),
    openColumn("sType", 2),
};

const ColumnDef columnsOBJ[] = {
    openColumn("qgt", 0),   openColumn("type", 1),  openColumn("xk", 2),    openColumn("yk", 3),
    openColumn("kind", 4),  openColumn("flag", 5),  openColumn("mday", 6),  openColumn("nday", 7),
    openColumn("lon", 8),   openColumn("lat", 9),   openColumn("xori", 10), openColumn("yori", 11),
    openColumn("zori", 12), openColumn("fobj", 13), openColumn("nozb", 14), openColumn("nozu", 15),
    openColumn("pm1", 16),  openColumn("pm2", 17),  openColumn("name", 18), openColumn("desc", 19),
    openColumn("scn", 20),
};

const ColumnDef columnsFNM[] = {
    openColumn("key", 0),
    openColumn("file", 1),
    openColumn("scene", 2),
    openColumn("scnno", 3),
};

const ColumnDef columnsObjectLight[] = {
    openColumn("xk", 0),     openColumn("yk", 1),      openColumn("mod", 2),    openColumn("mode", 3),
    openColumn("color", 4),  openColumn("texture", 5), openColumn("radius", 6), openColumn("freq", 7),
    openColumn("ontime", 8), openColumn("dx", 9),      openColumn("dy", 10),    openColumn("dz", 11),
};

template <std::size_t count>
TableLayout table(const QString& name, const ColumnDef (&columns)[count])
{
    return {name, columns, static_cast<int>(count)};
}

std::vector<TableLayout> navigationTables()
{
    return {
        table(QStringLiteral("APT"), fieldsAPT),     table(QStringLiteral("COM"), fieldsCOM),
        table(QStringLiteral("RWY"), fieldsRWY),     table(QStringLiteral("ILS"), fieldsILS),
        table(QStringLiteral("NAV"), fieldsNAV),     table(QStringLiteral("CTY"), fieldsCTY),
        table(QStringLiteral("STATE"), fieldsSTATE),
    };
}

std::vector<TableLayout> routeTables()
{
    return {
        table(QStringLiteral("ATSROUTE"), fieldsATSROUTE),
        table(QStringLiteral("SIDSTAR"), fieldsSIDSTAR),
        table(QStringLiteral("BDRY"), fieldsBDRY),
    };
}

std::vector<TableLayout> modelTables()
{
    return {
        table(QStringLiteral("MOD"), fieldsMOD),
        table(QStringLiteral("TEXTURE"), fieldsTEXTURE),
        table(QStringLiteral("SCN"), columnsSCN),
    };
}

std::vector<TableLayout> objectTables()
{
    return {
        table(QStringLiteral("OBJ"), columnsOBJ),
        table(QStringLiteral("FNM"), columnsFNM),
        table(QStringLiteral("Light"), columnsObjectLight),
    };
}

std::vector<TableLayout> taxiwayTables()
{
    return {
        table(QStringLiteral("Arcs"), columnsArcs),
        table(QStringLiteral("Node"), columnsNode),
        table(QStringLiteral("Pave"), fieldsPave),
        table(QStringLiteral("Light"), fieldsLight),
    };
}

} // namespace

const std::vector<DatabaseLayout>& databaseLayouts()
{
    // The route database goes by ROUTE in its file's name and by RTE everywhere else.
    static const std::vector<DatabaseLayout> layouts = {
        {QStringLiteral("GEN"), &CGlobalVar::dirGEN, &CGlobalVar::dbGEN, 0, QStringLiteral("GEN"), navigationTables()},
        {QStringLiteral("M3D"), &CGlobalVar::dirM3D, &CGlobalVar::dbM3D, 3, QStringLiteral("M3D"), modelTables()},
        {QStringLiteral("OBJ"), &CGlobalVar::dirOBJ, &CGlobalVar::dbOBJ, 4, QStringLiteral("OBJ"), objectTables()},
        {QStringLiteral("TXY"), &CGlobalVar::dirTXY, &CGlobalVar::dbTXY, 1, QStringLiteral("TXY"), taxiwayTables()},
        {QStringLiteral("WPT"),
         &CGlobalVar::dirWPT,
         &CGlobalVar::dbWPT,
         0,
         QStringLiteral("WPT"),
         {table(QStringLiteral("WPT"), fieldsWPT)}},
        {QStringLiteral("ROUTE"), &CGlobalVar::dirRTE, &CGlobalVar::dbRTE, 0, QStringLiteral("RTE"), routeTables()},
    };
    return layouts;
}
