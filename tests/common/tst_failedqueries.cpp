// Statements that fail: the error box, and what goes on after it.
#include "sqlmgr.h"

#include "boxresponder.h"
#include "sandbox.h"

#include <QtTest>

using LookupMethod = bool (SqlMgr::*)(const QString&, bool, QSqlQuery&);
Q_DECLARE_METATYPE(LookupMethod)

namespace {

const QString errorTitle = QStringLiteral("SQL Error");
const QString errorStart = QStringLiteral("One of the query failed to execute.Error detail: ");

QSqlQuery queryOn(SqlMgr& sqlMgr, const Sandbox& sandbox, const QString& file)
{
    sqlMgr.addDB(file, sandbox.path("SQL"));
    return QSqlQuery(QSqlDatabase::database(file));
}

/// Cascades of one to four steps with the key "12", and their statements.
void addCascades()
{
    QTest::addColumn<LookupMethod>("method");
    QTest::addColumn<bool>("exact");
    QTest::addColumn<QStringList>("statements");
    QTest::newRow("one step") << &SqlMgr::getRWY << true << QStringList{R"(SELECT * FROM RWY WHERE rapt = "12")"};
    QTest::newRow("two steps") << &SqlMgr::getSIDSTAR << false
                               << QStringList{R"(SELECT * FROM SIDSTAR WHERE sapt LIKE "12%")",
                                              R"(SELECT * FROM SIDSTAR WHERE strm LIKE "12%")"};
    QTest::newRow("three steps") << &SqlMgr::getNAV << true
                                 << QStringList{R"(SELECT * FROM NAV WHERE ukey = "12")",
                                                R"(SELECT * FROM NAV WHERE iden = "12")",
                                                R"(SELECT * FROM NAV WHERE name = "12")"};
    QTest::newRow("four steps") << &SqlMgr::getILS << false
                                << QStringList{R"(SELECT * FROM ILS WHERE iapt LIKE "12%")",
                                               R"(SELECT * FROM ILS WHERE iils LIKE "12%")",
                                               R"(SELECT * FROM ILS WHERE name LIKE "%12%")",
                                               R"(SELECT * FROM ILS WHERE ikey LIKE "%12%")"};
}

/// Runs the cascade of the data row on a connection that is not open: a box for each statement, and nothing found.
void everyStepShowsItsBox(SqlMgr& sqlMgr, const QSqlDatabase& connection)
{
    QFETCH(LookupMethod, method);
    QFETCH(bool, exact);
    QFETCH(QStringList, statements);
    QVERIFY(!connection.isOpen());
    QSqlQuery query(connection);
    BoxResponder responder;
    // The driver has no words of its own here: the text ends with the blank behind the statement.
    for (const QString& statement : statements)
        responder.expectMessage(errorTitle, errorStart + statement + ' ');
    QVERIFY(!(sqlMgr.*method)("12", exact, query));
    QVERIFY(responder.allUsed());
}

} // namespace

class TestFailedQueries : public QObject
{
    Q_OBJECT

private slots:
    void aConnectionThatFailedToOpenShowsABoxForEachStep_data()
    {
        addCascades();
    }

    void aConnectionThatFailedToOpenShowsABoxForEachStep()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        SqlMgr sqlMgr;
        {
            BoxResponder opening;
            opening.expectMessage("Ouverture de la base de données impossible.",
                                  "Impossible d\"établir la connexion avec GEN.db.");
            sqlMgr.addDB(dbfile::gen, sandbox.path("nowhere"));
            QVERIFY(opening.allUsed());
        }
        QVERIFY(QSqlDatabase::contains(dbfile::gen));
        // Asked for by name, as everywhere in the program: the opening is tried once more and fails again.
        everyStepShowsItsBox(sqlMgr, QSqlDatabase::database(dbfile::gen));
    }

    void aClosedConnectionShowsABoxForEachStep_data()
    {
        addCascades();
    }

    void aClosedConnectionShowsABoxForEachStep()
    {
        Sandbox sandbox;
        // Rows that are there and stay out of reach.
        sandbox.addRunway({{"rapt", "12"}});
        sandbox.addNavaid({{"ukey", "12"}});
        SqlMgr sqlMgr;
        sqlMgr.addDB(dbfile::gen, sandbox.path("SQL"));
        QSqlDatabase::database(dbfile::gen).close();
        everyStepShowsItsBox(sqlMgr, QSqlDatabase::database(dbfile::gen, false));
        // Asked for by name the connection opens again.
        QSqlQuery query(QSqlDatabase::database(dbfile::gen));
        QVERIFY(sqlMgr.getNAV("12", true, query));
    }

    void aMissingConnectionShowsABoxForEachStep()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        SqlMgr sqlMgr;
        QSqlQuery query(QSqlDatabase::database(QString()));
        BoxResponder responder;
        for (int i = 0; i < 3; ++i)
            responder.expectAnyMessage();
        QVERIFY(!sqlMgr.getAPT("LFPO", true, query));
        QVERIFY(responder.allUsed());
    }

    void aDeletionOnAClosedConnectionShowsItsBox()
    {
        Sandbox sandbox;
        sandbox.addNavaid();
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        QSqlDatabase::database(dbfile::gen).close();
        BoxResponder responder;
        responder.expectMessage(errorTitle, errorStart + "DELETE FROM NAV WHERE ukey = \"RBT\" ");
        sqlMgr.delNAV("RBT", query);
        QVERIFY(responder.allUsed());
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "SELECT count(*) FROM NAV").toInt(), 1);
    }

    void aFailedDeletionKeepsTheRow()
    {
        Sandbox sandbox;
        sandbox.addNavaid();
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        BoxResponder responder;
        responder.expectAnyMessage();
        sqlMgr.delNAV("R\"BT", query);
        QVERIFY(responder.allUsed());
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "SELECT count(*) FROM NAV").toInt(), 1);
    }

    void selectAllReportsAMissingTable()
    {
        Sandbox sandbox;
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        BoxResponder responder;
        responder.expectMessage(errorTitle, errorStart + "SELECT * from MISSING; no such table: MISSING "
                                                         "Unable to execute statement");
        QVERIFY(!sqlMgr.selectAll(query, "MISSING"));
        QCOMPARE(responder.seen().value(0).icon, QMessageBox::Information);
        QCOMPARE(responder.seen().value(0).choices.size(), 1);
    }

    void aQuoteInTheKeyBreaksTheStatement()
    {
        Sandbox sandbox;
        sandbox.addRunway();
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        BoxResponder responder;
        responder.expectAnyMessage();
        QVERIFY(!sqlMgr.getRWY("LF\"PO", true, query));
        QVERIFY(responder.allUsed());
        QCOMPARE(responder.seen().value(0).title, errorTitle);
        QVERIFY(responder.seen().value(0).text.startsWith(errorStart + "SELECT * FROM RWY WHERE rapt = \"LF\"PO\" "));
    }

    void aKeyThatGoesOnAsSqlIsNotRun()
    {
        Sandbox sandbox;
        sandbox.addRunway();
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        BoxResponder responder;
        responder.expectMessage(errorTitle, errorStart + "SELECT * FROM RWY WHERE rapt = \"X\" OR \"1\"=\"1\" ");
        QVERIFY(!sqlMgr.getRWY("X\" OR \"1\"=\"1", true, query));
        responder.expectMessage(errorTitle, errorStart + "DELETE FROM RWY WHERE rapt = \"X\" OR \"1\"=\"1\" ");
        sqlMgr.delRWY("X\" OR \"1\"=\"1", query);
        QVERIFY(responder.allUsed());
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "SELECT count(*) FROM RWY").toInt(), 1);
    }

    void aBoundaryLookupFailsTwiceInTheRouteDatabase()
    {
        Sandbox sandbox;
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::route);
        BoxResponder responder;
        responder.expectMessage(errorTitle, errorStart + "SELECT * FROM COM WHERE cnam = \"PARIS\" no such table: COM "
                                                         "Unable to execute statement");
        responder.expectMessage(errorTitle, errorStart + "SELECT * FROM COM WHERE ckey = \"PARIS\" no such table: COM "
                                                         "Unable to execute statement");
        QVERIFY(!sqlMgr.getBDRY("PARIS", true, query));
        QVERIFY(responder.allUsed());
    }

    void aFailedStepDoesNotEndTheCascade()
    {
        Sandbox sandbox;
        sandbox.sql(dbfile::gen, "CREATE TABLE Other (iden TEXT, name TEXT)");
        sandbox.sql(dbfile::gen, "INSERT INTO Other VALUES ('RBT', 'RAMBOUILLET')");
        sandbox.sql(dbfile::gen, "DROP TABLE NAV");
        sandbox.sql(dbfile::gen, "ALTER TABLE Other RENAME TO NAV");
        SqlMgr sqlMgr;
        QSqlQuery query = queryOn(sqlMgr, sandbox, dbfile::gen);
        BoxResponder responder;
        // No column `ukey`: LIKE compares the quoted key with a column that is not there.
        responder.expectAnyMessage();
        QVERIFY(sqlMgr.getNAV("RBT", false, query));
        QCOMPARE(query.value(1).toString(), QString("RAMBOUILLET"));
    }
};

QTEST_MAIN(TestFailedQueries)
#include "tst_failedqueries.moc"
