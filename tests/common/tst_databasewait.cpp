// The wait for another program's lock: once for a row of statements, and as long as before afterwards.
#include "databasewait.h"

#include "databaselock.h"
#include "sandbox.h"
#include "sqlmgr.h"

#include <QSqlError>
#include <QtTest>

class TestDatabaseWait : public QObject
{
    Q_OBJECT

    static int wait()
    {
        QSqlQuery query(QSqlDatabase::database(dbfile::route));
        return query.exec("PRAGMA busy_timeout") && query.next() ? query.value(0).toInt() : -1;
    }

private slots:
    void onlyALockEndsTheWaiting()
    {
        Sandbox sandbox;
        SqlMgr sqlMgr;
        sqlMgr.addDB(dbfile::route, sandbox.path("SQL"));
        QCOMPARE(wait(), 1000);
        const QSqlDatabase database = QSqlDatabase::database(dbfile::route);
        QSqlQuery query(database);
        {
            OneWait patience(database);
            QVERIFY(!patience.exec(query, "no statement"));
            QVERIFY(!patience.exec(query, "SELECT * FROM nowhere"));
            QCOMPARE(wait(), 1000);
            {
                const DatabaseLock lock(sandbox.path("SQL/ROUTE.db"), DatabaseLock::Kind::Reserved);
                QVERIFY(!patience.exec(query, "INSERT INTO SIDSTAR (skey) VALUES ('A')"));
                QVERIFY2(query.lastError().text().contains("database is locked"), qPrintable(query.lastError().text()));
                QCOMPARE(wait(), 0);
                QVERIFY(!patience.exec(query, "INSERT INTO SIDSTAR (skey) VALUES ('B')"));
                QVERIFY(patience.exec(query, "SELECT * FROM SIDSTAR"));
            }
            QVERIFY(patience.exec(query, "INSERT INTO SIDSTAR (skey) VALUES ('C')"));
            QCOMPARE(wait(), 0);
        }
        QCOMPARE(wait(), 1000);
        QVERIFY(query.exec("SELECT skey FROM SIDSTAR") && query.next());
        QCOMPARE(query.value(0).toString(), QString("C"));
        QVERIFY(!query.next());
    }

    void aLockThatKeepsFromReadingCountsToo()
    {
        Sandbox sandbox;
        SqlMgr sqlMgr;
        sqlMgr.addDB(dbfile::route, sandbox.path("SQL"));
        const QSqlDatabase database = QSqlDatabase::database(dbfile::route);
        QSqlQuery query(database);
        const DatabaseLock lock(sandbox.path("SQL/ROUTE.db"), DatabaseLock::Kind::Exclusive);
        OneWait patience(database);
        QVERIFY(!patience.exec(query, "SELECT * FROM SIDSTAR"));
        QCOMPARE(wait(), 0);
    }

    void aDatabaseThatIsNotOpenDoesNoHarm()
    {
        const QSqlDatabase none;
        QSqlQuery query(none);
        OneWait patience(none);
        QVERIFY(!patience.exec(query, "SELECT 1"));
    }
};

QTEST_MAIN(TestDatabaseWait)
#include "tst_databasewait.moc"
