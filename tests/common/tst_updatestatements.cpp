#include "datadictionary.h"
#include "updatestatements.h"

#include <QRegularExpression>
#include <QtTest>

class TestUpdateStatements : public QObject
{
    Q_OBJECT

private slots:
    void tables_data();
    void tables();
    void placeholdersAreTheColumns_data()
    {
        tables_data();
    }
    void placeholdersAreTheColumns();
    void columnsFollowTheDataDictionary_data();
    void columnsFollowTheDataDictionary();
    void textsToTheLetter_data();
    void textsToTheLetter();
    void routeTablesBindOneValueTooMany();
    void unknownTablesAreNotFound();
    void theTwoLightTablesDiffer();
};

namespace {

const UpdateStatement& at(int number)
{
    return updateStatements().at(std::size_t(number));
}

/// The names between the first parentheses of a statement.
QStringList columnsOf(const UpdateStatement& statement)
{
    const QString text = statement.text;
    const int open = text.indexOf('(');
    return text.mid(open + 1, text.indexOf(')') - open - 1).simplified().remove(' ').split(',');
}

template <int count>
QStringList codes(const ColumnDef (&fields)[count])
{
    QStringList list;
    for (const ColumnDef& field : fields)
        list << field.code;
    return list;
}

} // namespace

void TestUpdateStatements::tables_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("lastField");
    QTest::addColumn<int>("lastTextField");
    QTest::addColumn<QString>("hexadecimal");
    struct Expected
    {
        const char* database;
        const char* table;
        int columns;
        int lastField;
        int lastTextField;
        const char* hexadecimal; // field numbers, "b" behind one whose digits go a byte each
    };
    const Expected expected[] = {
        {"GEN", "APT", 50, 52, 52, ""},      {"GEN", "COM", 12, 14, 14, ""},
        {"GEN", "RWY", 71, 73, 73, ""},      {"GEN", "ILS", 14, 16, 16, ""},
        {"GEN", "NAV", 17, 19, 19, ""},      {"WPT", "WPT", 16, 18, 18, ""},
        {"RTE", "ATSROUTE", 25, 28, 28, ""}, {"RTE", "SIDSTAR", 10, 13, 13, ""},
        {"RTE", "BDRY", 21, 23, 23, ""},     {"M3D", "MOD", 13, 15, 12, "12 13b 14b 15b"},
        {"M3D", "SCN", 3, 5, 5, ""},         {"M3D", "TEXTURE", 4, 6, 6, "6"},
        {"OBJ", "FNM", 4, 6, 6, ""},         {"OBJ", "OBJ", 21, 23, 23, ""},
        {"OBJ", "Light", 12, 14, 14, ""},    {"TXY", "Arcs", 9, 11, 11, "11"},
        {"TXY", "Light", 8, 10, 10, ""},     {"TXY", "Node", 9, 11, 11, "11"},
        {"TXY", "Pave", 5, 7, 7, "7"},
    };
    int number = 0;
    for (const Expected& e : expected)
        QTest::addRow("%s %s", e.database, e.table)
            << number++ << e.database << e.table << e.columns << e.lastField << e.lastTextField << e.hexadecimal;
}

void TestUpdateStatements::tables()
{
    QFETCH(int, number);
    QFETCH(QString, database);
    QFETCH(QString, table);
    const UpdateStatement& statement = at(number);
    QCOMPARE(QString(statement.database), database);
    QCOMPARE(QString(statement.table), table);
    QTEST(statement.columns, "columns");
    QTEST(statement.lastField, "lastField");
    QTEST(statement.lastTextField, "lastTextField");
    QStringList hexadecimal;
    for (const HexadecimalField& blob : statement.hexadecimal)
        hexadecimal << QString::number(blob.field) + (blob.latin1 ? "b" : "");
    QTEST(hexadecimal.join(' '), "hexadecimal");
    QCOMPARE(findUpdateStatement(database, table), &statement);
}

void TestUpdateStatements::placeholdersAreTheColumns()
{
    QFETCH(int, number);
    QFETCH(int, columns);
    QFETCH(QString, table);
    const QString text = at(number).text;
    QVERIFY2(text.startsWith("REPLACE INTO " + table + " ( "), qPrintable(text));
    QStringList placeholders;
    QRegularExpressionMatchIterator match = QRegularExpression(":(\\w+)").globalMatch(text);
    while (match.hasNext())
        placeholders << match.next().captured(1);
    QCOMPARE(placeholders, columnsOf(at(number)));
    QCOMPARE(placeholders.size(), columns);
}

void TestUpdateStatements::columnsFollowTheDataDictionary_data()
{
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    QStringList withoutPoint = codes(fieldsSIDSTAR);
    withoutPoint.removeAll("swid");
    QTest::newRow("APT") << "GEN"
                         << "APT" << codes(fieldsAPT);
    QTest::newRow("COM") << "GEN"
                         << "COM" << codes(fieldsCOM);
    QTest::newRow("RWY") << "GEN"
                         << "RWY" << codes(fieldsRWY);
    QTest::newRow("ILS") << "GEN"
                         << "ILS" << codes(fieldsILS);
    QTest::newRow("NAV") << "GEN"
                         << "NAV" << codes(fieldsNAV);
    QTest::newRow("WPT") << "WPT"
                         << "WPT" << codes(fieldsWPT);
    QTest::newRow("ATSROUTE, without tile") << "RTE"
                                            << "ATSROUTE" << QStringList(codes(fieldsATSROUTE).mid(1));
    QTest::newRow("SIDSTAR, without swid") << "RTE"
                                           << "SIDSTAR" << withoutPoint;
    QTest::newRow("BDRY") << "RTE"
                          << "BDRY" << codes(fieldsBDRY);
    QTest::newRow("MOD") << "M3D"
                         << "MOD" << codes(fieldsMOD);
    QTest::newRow("TEXTURE") << "M3D"
                             << "TEXTURE" << codes(fieldsTEXTURE);
    QTest::newRow("Light") << "TXY"
                           << "Light" << codes(fieldsLight);
    QTest::newRow("Pave") << "TXY"
                          << "Pave" << codes(fieldsPave);
}

void TestUpdateStatements::columnsFollowTheDataDictionary()
{
    QFETCH(QString, database);
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    // The key of ATSROUTE is written aKey in the statement; SQL does not mind.
    QCOMPARE(columnsOf(*findUpdateStatement(database, table)).join(',').toLower(), columns.join(',').toLower());
}

void TestUpdateStatements::textsToTheLetter_data()
{
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("text");
    QTest::newRow("COM") << "GEN"
                         << "COM"
                         << "REPLACE INTO COM ( tile, ckey, capt, cnam, ctyp, frq1, frq2, frq3, frq4, frq5, clat, "
                            "clon)VALUES (:tile,:ckey,:capt,:cnam,:ctyp,:frq1,:frq2,:frq3,:frq4,:frq5,:clat,:clon)";
    QTest::newRow("WPT")
        << "WPT"
        << "WPT"
        << "REPLACE INTO WPT ( tile, iden, ukey, name, ctry, stat, wloc, wtyp, wuse, wlat, wlon, walt, "
           "wmag, wbrg, wdis, wnav)VALUES (:tile,:iden,:ukey,:name,:ctry,:stat,:wloc,:wtyp,:wuse,:wlat,"
           ":wlon,:walt,:wmag,:wbrg,:wdis,:wnav)";
    QTest::newRow("SCN") << "M3D"
                         << "SCN"
                         << "REPLACE INTO SCN ( key, Type, sType)VALUES (:key,:Type,:sType);";
    QTest::newRow("TEXTURE") << "M3D"
                             << "TEXTURE"
                             << "REPLACE INTO TEXTURE ( xname, wd, ht, tex)VALUES (:xname,:wd,:ht,:tex);";
    QTest::newRow("Light of OBJ")
        << "OBJ"
        << "Light"
        << "REPLACE INTO Light ( xk, yk, mod, mode, color, texture, radius, freq, ontime, dx, "
           "dy, dz)VALUES (:xk,:yk,:mod,:mode,:color,:texture,:radius,:freq,:ontime,:dx,:dy,:dz)";
    QTest::newRow("Pave") << "TXY"
                          << "Pave"
                          << "REPLACE INTO Pave ( aKey, Type, aUse, Nbvt, vTab)VALUES (:aKey,:Type,:aUse,:Nbvt,:vTab)";
}

void TestUpdateStatements::textsToTheLetter()
{
    QFETCH(QString, database);
    QFETCH(QString, table);
    QTEST(QString(findUpdateStatement(database, table)->text), "text");
}

void TestUpdateStatements::routeTablesBindOneValueTooMany()
{
    for (const char* table : {"ATSROUTE", "SIDSTAR"}) {
        const UpdateStatement* statement = findUpdateStatement("RTE", table);
        QCOMPARE(statement->lastField - 3 + 1, statement->columns + 1);
    }
}

void TestUpdateStatements::unknownTablesAreNotFound()
{
    QVERIFY(findUpdateStatement("GEN", "WPT") == nullptr);
    QVERIFY(findUpdateStatement("ROUTE", "SIDSTAR") == nullptr);
    QVERIFY(findUpdateStatement("gen", "NAV") == nullptr);
    QVERIFY(findUpdateStatement("GEN", "nav") == nullptr);
    QVERIFY(findUpdateStatement("", "") == nullptr);
}

void TestUpdateStatements::theTwoLightTablesDiffer()
{
    QCOMPARE(columnsOf(*findUpdateStatement("OBJ", "Light")).first(), QString("xk"));
    QCOMPARE(columnsOf(*findUpdateStatement("TXY", "Light")).first(), QString("aKey"));
}

QTEST_GUILESS_MAIN(TestUpdateStatements)
#include "tst_updatestatements.moc"
