// The catalogue of lookups and deletions.
#include "sqlmgr.h"

#include "boxresponder.h"
#include "sandbox.h"

#include <QtTest>

#include <functional>

using LookupMethod = std::function<bool(SqlMgr&, const QString&, bool, QSqlQuery&)>;
using DeletionMethod = std::function<void(SqlMgr&, const QString&, QSqlQuery&)>;
Q_DECLARE_METATYPE(LookupMethod)
Q_DECLARE_METATYPE(DeletionMethod)

namespace {

const QString errorStart = QStringLiteral("One of the query failed to execute.Error detail: ");

using TextLookup = bool (SqlMgr::*)(const QString&, bool, QSqlQuery&);
using Deletion = void (SqlMgr::*)(const QString&, QSqlQuery&);

LookupMethod textLookup(TextLookup method)
{
    return [method](SqlMgr& sqlMgr, const QString& key, bool exact, QSqlQuery& query) {
        return (sqlMgr.*method)(key, exact, query);
    };
}

DeletionMethod deletion(Deletion method)
{
    return [method](SqlMgr& sqlMgr, const QString& key, QSqlQuery& query) { (sqlMgr.*method)(key, query); };
}

/// The statement of an error box.
QString statementOf(const SeenBox& box)
{
    return box.text.mid(errorStart.size()).section(QStringLiteral(" no such table"), 0, 0);
}

void lookupRow(const char* name, const LookupMethod& method, const QStringList& equal, const QStringList& like)
{
    QTest::newRow(qPrintable(QString("%1 exact").arg(name))) << method << true << equal;
    QTest::newRow(qPrintable(QString("%1 like").arg(name))) << method << false << like;
}

QSqlQuery queryOn(SqlMgr& sqlMgr, const Sandbox& sandbox, const QString& file)
{
    sqlMgr.addDB(file, sandbox.path("SQL"));
    return QSqlQuery(QSqlDatabase::database(file));
}

} // namespace

class TestQueryCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void lookupStatements_data()
    {
        QTest::addColumn<LookupMethod>("method");
        QTest::addColumn<bool>("exact");
        QTest::addColumn<QStringList>("statements");
        lookupRow("getAPT", textLookup(&SqlMgr::getAPT),
                  {R"(SELECT * FROM APT WHERE ukey = "12")", R"(SELECT * FROM APT WHERE iden = "12")",
                   R"(SELECT * FROM APT WHERE name = "12")"},
                  {R"(SELECT * FROM APT WHERE ukey LIKE "12%")", R"(SELECT * FROM APT WHERE iden LIKE "12%")",
                   R"(SELECT * FROM APT WHERE name LIKE "%12%")"});
        lookupRow("getNAV", textLookup(&SqlMgr::getNAV),
                  {R"(SELECT * FROM NAV WHERE ukey = "12")", R"(SELECT * FROM NAV WHERE iden = "12")",
                   R"(SELECT * FROM NAV WHERE name = "12")"},
                  {R"(SELECT * FROM NAV WHERE ukey LIKE "12%")", R"(SELECT * FROM NAV WHERE iden LIKE "12%")",
                   R"(SELECT * FROM NAV WHERE name LIKE "%12%")"});
        lookupRow("getWPT", textLookup(&SqlMgr::getWPT),
                  {R"(SELECT * FROM WPT WHERE ukey = "12")", R"(SELECT * FROM WPT WHERE iden = "12")",
                   R"(SELECT * FROM WPT WHERE name = "12")"},
                  {R"(SELECT * FROM WPT WHERE ukey LIKE "12%")", R"(SELECT * FROM WPT WHERE iden LIKE "12%")",
                   R"(SELECT * FROM WPT WHERE name LIKE "%12%")"});
        lookupRow("getILS", textLookup(&SqlMgr::getILS),
                  {R"(SELECT * FROM ILS WHERE iapt = "12")", R"(SELECT * FROM ILS WHERE iils = "12")",
                   R"(SELECT * FROM ILS WHERE name = "12")", R"(SELECT * FROM ILS WHERE ikey = "12")"},
                  {R"(SELECT * FROM ILS WHERE iapt LIKE "12%")", R"(SELECT * FROM ILS WHERE iils LIKE "12%")",
                   R"(SELECT * FROM ILS WHERE name LIKE "%12%")", R"(SELECT * FROM ILS WHERE ikey LIKE "%12%")"});
        lookupRow("getCOM", textLookup(&SqlMgr::getCOM),
                  {R"(SELECT * FROM COM WHERE capt = "12")", R"(SELECT * FROM COM WHERE cnam = "12")",
                   R"(SELECT * FROM COM WHERE ckey = "12")"},
                  {R"(SELECT * FROM COM WHERE capt LIKE "12%")", R"(SELECT * FROM COM WHERE cnam LIKE "12%")",
                   R"(SELECT * FROM COM WHERE ckey LIKE "\12%")"});
        lookupRow("getRWY", textLookup(&SqlMgr::getRWY), {R"(SELECT * FROM RWY WHERE rapt = "12")"},
                  {R"(SELECT * FROM RWY WHERE rapt LIKE "12%")"});
        lookupRow("getArcs", textLookup(&SqlMgr::getArcs), {R"(SELECT * FROM Arcs WHERE akey = "12")"},
                  {R"(SELECT * FROM Arcs WHERE akey LIKE "12%")"});
        lookupRow("getNode", textLookup(&SqlMgr::getNode), {R"(SELECT * FROM Node WHERE akey = "12")"},
                  {R"(SELECT * FROM Node WHERE akey LIKE "12%")"});
        lookupRow("getPave", textLookup(&SqlMgr::getPave), {R"(SELECT * FROM PAVE WHERE akey = "12")"},
                  {R"(SELECT * FROM PAVE WHERE akey LIKE "12%")"});
        lookupRow("getLight", textLookup(&SqlMgr::getLight), {R"(SELECT * FROM LIGHT WHERE akey = "12")"},
                  {R"(SELECT * FROM LIGHT WHERE akey LIKE "12%")"});
        lookupRow("getMOD", textLookup(&SqlMgr::getMOD), {R"(SELECT * FROM MOD WHERE name = "12")"},
                  {R"(SELECT * FROM MOD WHERE name LIKE "12%")"});
        lookupRow("getTEXTURE", textLookup(&SqlMgr::getTEXTURE), {R"(SELECT * FROM TEXTURE WHERE xname = "12")"},
                  {R"(SELECT * FROM TEXTURE WHERE xname LIKE "12%")"});
        lookupRow("getOBJmday", textLookup(&SqlMgr::getOBJmday), {R"(SELECT * FROM OBJ WHERE mday = "12")"},
                  {R"(SELECT * FROM OBJ WHERE mday LIKE "12%")"});
        const LookupMethod scenery = [](SqlMgr& manager, const QString& key, bool exact, QSqlQuery& query) {
            return manager.getOBJscn(key.toInt(), exact, query);
        };
        lookupRow("getOBJscn", scenery, {R"(SELECT * FROM OBJ WHERE scn = "12")"},
                  {R"(SELECT * FROM OBJ WHERE scn LIKE "12%")"});
        lookupRow("getFNM", textLookup(&SqlMgr::getFNM), {R"(SELECT * FROM FNM WHERE scene = "12")"},
                  {R"(SELECT * FROM FNM WHERE scene LIKE "12%")"});
        lookupRow("getATSROUTE", textLookup(&SqlMgr::getATSROUTE), {R"(SELECT * FROM ATSROUTE WHERE aaid = "12")"},
                  {R"(SELECT * FROM ATSROUTE WHERE aaid LIKE "12%")"});
        lookupRow("getSIDSTAR", textLookup(&SqlMgr::getSIDSTAR),
                  {R"(SELECT * FROM SIDSTAR WHERE sapt = "12")", R"(SELECT * FROM SIDSTAR WHERE strm = "12")"},
                  {R"(SELECT * FROM SIDSTAR WHERE sapt LIKE "12%")", R"(SELECT * FROM SIDSTAR WHERE strm LIKE "12%")"});
        lookupRow("getBDRY", textLookup(&SqlMgr::getBDRY),
                  {R"(SELECT * FROM BDRY WHERE bkey = "12")", R"(SELECT * FROM COM WHERE cnam = "12")",
                   R"(SELECT * FROM COM WHERE ckey = "12")"},
                  {R"(SELECT * FROM BDRY WHERE bkey LIKE "12%")", R"(SELECT * FROM COM WHERE cnam LIKE "12%")",
                   R"(SELECT * FROM COM WHERE ckey LIKE "%12%")"});
    }

    /// On a database without tables every step of a cascade fails and shows its statement.
    void lookupStatements()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("SQL/GEN.db", "");
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, "GEN.db");
        QFETCH(LookupMethod, method);
        QFETCH(bool, exact);
        QFETCH(QStringList, statements);
        BoxResponder responder;
        for (int i = 0; i < statements.size(); ++i)
            responder.expectAnyMessage();
        QVERIFY(!method(sqlMgr, "12", exact, query));
        QStringList run;
        for (const SeenBox& box : responder.seen())
            run << statementOf(box);
        QCOMPARE(run, statements);
    }

    void deletionStatements_data()
    {
        QTest::addColumn<DeletionMethod>("method");
        QTest::addColumn<QString>("statement");
        QTest::newRow("delAPT") << deletion(&SqlMgr::delAPT) << R"(DELETE FROM APT WHERE ukey = "12")";
        QTest::newRow("delNAV") << deletion(&SqlMgr::delNAV) << R"(DELETE FROM NAV WHERE ukey = "12")";
        QTest::newRow("delWPT") << deletion(&SqlMgr::delWPT) << R"(DELETE FROM WPT WHERE ukey = "12")";
        QTest::newRow("delILS") << deletion(&SqlMgr::delILS) << R"(DELETE FROM ILS WHERE iapt = "12")";
        QTest::newRow("delCOM") << deletion(&SqlMgr::delCOM) << R"(DELETE FROM COM WHERE capt = "12")";
        QTest::newRow("delRWY") << deletion(&SqlMgr::delRWY) << R"(DELETE FROM RWY WHERE rapt = "12")";
        QTest::newRow("delPave") << deletion(&SqlMgr::delPave) << R"(DELETE FROM PAVE WHERE akey = "12")";
        QTest::newRow("delLight") << deletion(&SqlMgr::delLight) << R"(DELETE FROM LIGHT WHERE akey = "12")";
        QTest::newRow("delMOD") << deletion(&SqlMgr::delMOD) << R"(DELETE FROM MOD WHERE name = "12")";
        QTest::newRow("delTEXTURE") << deletion(&SqlMgr::delTEXTURE) << R"(DELETE FROM TEXTURE WHERE xname = "12")";
        QTest::newRow("delOBJmday") << deletion(&SqlMgr::delOBJmday) << R"(DELETE FROM OBJ WHERE mday = "12")";
        QTest::newRow("delOBJscn") << deletion(&SqlMgr::delOBJscn) << R"(DELETE FROM OBJ WHERE scn = "12")";
        QTest::newRow("delFNM") << deletion(&SqlMgr::delFNM) << R"(DELETE FROM FNM WHERE scene = "12")";
        QTest::newRow("delATSROUTE") << deletion(&SqlMgr::delATSROUTE) << R"(DELETE FROM ATSROUTE WHERE aaid = "12")";
        QTest::newRow("delSIDSTARname") << deletion(&SqlMgr::delSIDSTARname)
                                        << R"(DELETE FROM SIDSTAR WHERE strm = "12")";
        QTest::newRow("delSIDSTARapt") << deletion(&SqlMgr::delSIDSTARapt)
                                       << R"(DELETE FROM SIDSTAR WHERE sapt = "12")";
        QTest::newRow("delBDRY") << deletion(&SqlMgr::delBDRY) << R"(DELETE FROM BDRY WHERE bkey = "12")";
    }

    void deletionStatements()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("SQL/GEN.db", "");
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, "GEN.db");
        QFETCH(DeletionMethod, method);
        BoxResponder responder;
        responder.expectAnyMessage();
        method(sqlMgr, "12", query);
        QCOMPARE(responder.seen().size(), 1);
        QTEST(statementOf(responder.seen().value(0)), "statement");
    }

    void aDeletionTakesNoColumnForItsKey_data()
    {
        QTest::addColumn<DeletionMethod>("method");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::newRow("delAPT") << deletion(&SqlMgr::delAPT) << dbfile::gen << "APT"
                                << "ukey";
        QTest::newRow("delNAV") << deletion(&SqlMgr::delNAV) << dbfile::gen << "NAV"
                                << "ukey";
        QTest::newRow("delWPT") << deletion(&SqlMgr::delWPT) << dbfile::wpt << "WPT"
                                << "ukey";
        QTest::newRow("delILS") << deletion(&SqlMgr::delILS) << dbfile::gen << "ILS"
                                << "iapt";
        QTest::newRow("delCOM") << deletion(&SqlMgr::delCOM) << dbfile::gen << "COM"
                                << "capt";
        QTest::newRow("delRWY") << deletion(&SqlMgr::delRWY) << dbfile::gen << "RWY"
                                << "rapt";
        QTest::newRow("delPave") << deletion(&SqlMgr::delPave) << dbfile::txy << "Pave"
                                 << "aKey";
        QTest::newRow("delLight") << deletion(&SqlMgr::delLight) << dbfile::txy << "Light"
                                  << "aKey";
        QTest::newRow("delMOD") << deletion(&SqlMgr::delMOD) << dbfile::m3d << "MOD"
                                << "name";
        QTest::newRow("delTEXTURE") << deletion(&SqlMgr::delTEXTURE) << dbfile::m3d << "TEXTURE"
                                    << "xname";
        QTest::newRow("delOBJmday") << deletion(&SqlMgr::delOBJmday) << dbfile::obj << "OBJ"
                                    << "mday";
        QTest::newRow("delOBJscn") << deletion(&SqlMgr::delOBJscn) << dbfile::obj << "OBJ"
                                   << "scn";
        QTest::newRow("delFNM") << deletion(&SqlMgr::delFNM) << dbfile::obj << "FNM"
                                << "scene";
        QTest::newRow("delATSROUTE") << deletion(&SqlMgr::delATSROUTE) << dbfile::route << "ATSROUTE"
                                     << "aaid";
        QTest::newRow("delSIDSTARname") << deletion(&SqlMgr::delSIDSTARname) << dbfile::route << "SIDSTAR"
                                        << "strm";
        QTest::newRow("delSIDSTARapt") << deletion(&SqlMgr::delSIDSTARapt) << dbfile::route << "SIDSTAR"
                                       << "sapt";
        QTest::newRow("delBDRY") << deletion(&SqlMgr::delBDRY) << dbfile::route << "BDRY"
                                 << "bkey";
    }

    void aDeletionTakesNoColumnForItsKey()
    {
        Sandbox sandbox;
        QFETCH(DeletionMethod, method);
        QFETCH(QString, file);
        QFETCH(QString, table);
        QFETCH(QString, column);
        for (const char* key : {"12", "13", "14"})
            sandbox.insertRow(file, table, {{column, key}});
        const QString keys = QString("SELECT group_concat(%1, ' ') FROM %2").arg(column, table);
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, file);
        BoxResponder responder;
        method(sqlMgr, "13", query);
        QCOMPARE(sandbox.sqlValue(file, keys).toString(), QString("12 14"));
        responder.expectAnyMessage();
        method(sqlMgr, column, query);
        responder.expectAnyMessage();
        method(sqlMgr, column.toUpper(), query);
        QVERIFY(responder.allUsed());
        QCOMPARE(statementOf(responder.seen().value(1)).section(" = ", 1), '"' + column.toUpper() + "\" ");
        QCOMPARE(sandbox.sqlValue(file, keys).toString(), QString("12 14"));
    }

    void selectAllReadsATable()
    {
        Sandbox sandbox;
        sandbox.addCountry("FR", "FRANCE");
        sandbox.addCountry("IT", "ITALY");
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(sqlMgr.selectAll(query, "CTY"));
        QCOMPARE(query.lastQuery(), QString("SELECT * from CTY;"));
        QVERIFY(query.next());
        QCOMPARE(query.value(0).toString(), QString("FR"));
        QVERIFY(query.next());
        QVERIFY(!query.next());
    }

    void aKeyFoundEndsTheCascade()
    {
        Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "LFPG"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(sqlMgr.getNAV("LFPG", true, query));
        QCOMPARE(query.lastQuery(), QString("SELECT * FROM NAV WHERE ukey = \"LFPG\""));
        QCOMPARE(query.value(1).toString(), QString("LFPG"));
    }

    void aPrefixGoesOnToIdentifiers()
    {
        Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "1"}, {"iden", "LFX"}, {"name", "ONE"}});
        sandbox.addNavaid({{"ukey", "2"}, {"iden", "XLF"}, {"name", "HALF"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(sqlMgr.getNAV("LF", false, query));
        QCOMPARE(query.lastQuery(), QString("SELECT * FROM NAV WHERE iden LIKE \"LF%\""));
        QCOMPARE(query.value(1).toString(), QString("1"));
        QVERIFY(!query.next());
    }

    void aPrefixGoesOnToNamesThatContainIt()
    {
        Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "1"}, {"iden", "AAA"}, {"name", "GOLF COURSE"}});
        sandbox.addNavaid({{"ukey", "2"}, {"iden", "BBB"}, {"name", "SELF"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(sqlMgr.getNAV("LF", false, query));
        QCOMPARE(query.lastQuery(), QString("SELECT * FROM NAV WHERE name LIKE \"%LF%\""));
        QVERIFY(query.next());
        QCOMPARE(query.value(1).toString(), QString("2"));
    }

    void nothingFound()
    {
        Sandbox sandbox;
        sandbox.addAirport();
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(!sqlMgr.getAPT("ZZZZ", true, query));
        QVERIFY(!sqlMgr.getAPT("ZZZZ", false, query));
    }

    void aColumnsNameMatchesEveryRow()
    {
        Sandbox sandbox;
        sandbox.addAirport({{"ukey", "LFPO"}});
        sandbox.addAirport({{"ukey", "LFPG"}, {"name", "ROISSY"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(sqlMgr.getAPT("name", true, query));
        QCOMPARE(query.lastQuery(), QString("SELECT * FROM APT WHERE name = \"name\""));
        QVERIFY(query.next());
        QVERIFY(!query.next());
    }

    void anEmptyKeyMatchesEveryRowInTheFirstStep()
    {
        Sandbox sandbox;
        sandbox.addAirport({{"ukey", "LFPO"}});
        sandbox.addAirport({{"ukey", "EGLL"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(sqlMgr.getAPT("", false, query));
        QCOMPARE(query.lastQuery(), QString("SELECT * FROM APT WHERE ukey LIKE \"%\""));
        QVERIFY(query.next());
        QVERIFY(!query.next());
    }

    void theBackslashFindsNothing()
    {
        Sandbox sandbox;
        sandbox.insertRow(dbfile::gen, "COM", {{"ckey", "TWR1"}, {"capt", "LFPO"}, {"cnam", "ORLY TOWER"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QVERIFY(!sqlMgr.getCOM("TWR", false, query));
        QVERIFY(sqlMgr.getCOM("TWR1", true, query));
    }

    void deletionTakesTheRowsOfTheKeyOnly()
    {
        Sandbox sandbox;
        sandbox.addProcedureLeg({{"skey", "1"}, {"strm", "BAMES1A"}});
        sandbox.addProcedureLeg({{"skey", "2"}, {"strm", "BAMES1A"}});
        sandbox.addProcedureLeg({{"skey", "3"}, {"strm", "RBT2B"}});
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::route);
        sqlMgr.delSIDSTARname("BAMES1A", query);
        QCOMPARE(sandbox.sqlValue(dbfile::route, "SELECT group_concat(skey) FROM SIDSTAR").toString(), QString("3"));
        sqlMgr.delSIDSTARapt("LFPO", query);
        QCOMPARE(sandbox.sqlValue(dbfile::route, "SELECT count(*) FROM SIDSTAR").toInt(), 0);
    }
};

QTEST_MAIN(TestQueryCatalogue)
#include "tst_querycatalogue.moc"
