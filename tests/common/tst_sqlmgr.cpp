// Connections to the databases and the check of their version.
#include "sqlmgr.h"

#include "boxresponder.h"
#include "childprocess.h"
#include "messagelog.h"
#include "sandbox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTextStream>
#include <QtTest>

namespace {

const QString notOpenTitle = QStringLiteral("Ouverture de la base de données impossible.");
const QString notOpenText = QStringLiteral("Impossible d\"établir la connexion avec %1.");

QVariant valueOf(const QString& connection, const QString& statement)
{
    QSqlQuery query(statement, QSqlDatabase::database(connection));
    return query.next() ? query.value(0) : QVariant();
}

/// Checks one database in a process of its own and tells on standard output what the box shows.
int checkInChild(const QString& name, int version)
{
    BoxResponder responder;
    responder.expectDialog("QMessageBox", [&](QDialog* dialog) {
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        QTextStream out(stdout);
        out.setCodec("UTF-8");
        out << box->windowTitle() << '|' << box->text() << '|' << box->icon() << '|' << box->buttons().size() << '|'
            << (QSqlDatabase::contains(name) ? "connected" : "removed") << Qt::endl;
        box->button(QMessageBox::Ok)->click();
    });
    SqlMgr sqlMgr;
    const bool right = sqlMgr.checkDBVersion(QDir("../../SQL"), name, version);
    QTextStream(stdout) << (right ? "right version" : "not adopted") << Qt::endl;
    return 0;
}

} // namespace

class TestSqlMgr : public QObject
{
    Q_OBJECT

private slots:
    void opensAFileForFastUpdates()
    {
        Sandbox sandbox;
        SqlMgr sqlMgr;
        MessageLog log;
        sqlMgr.addDB("GEN.db", sandbox.path("SQL"));
        QVERIFY(QSqlDatabase::database("GEN.db", false).isOpen());
        QCOMPARE(QSqlDatabase::database("GEN.db").databaseName(), sandbox.path("SQL/GEN.db"));
        QCOMPARE(valueOf("GEN.db", "PRAGMA synchronous").toInt(), 0);
        QCOMPARE(valueOf("GEN.db", "PRAGMA journal_mode").toString(), QString("memory"));
        QCOMPARE(log.messages(), QStringList{QString("is open \"GEN.db\" \"%1\"").arg(sandbox.path("SQL"))});
    }

    void aFailedOpeningShowsOneBoxAndStaysRegistered()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        BoxResponder responder;
        responder.expectMessage(notOpenTitle, notOpenText.arg("GEN.db"));
        SqlMgr sqlMgr;
        MessageLog log;
        sqlMgr.addDB("GEN.db", sandbox.path("nowhere"));
        QVERIFY(responder.allUsed());
        QCOMPARE(responder.seen().value(0).icon, QMessageBox::Critical);
        QCOMPARE(responder.seen().value(0).choices.size(), 1);
        QCOMPARE(log.startingWith("Database not found"),
                 QStringList{QString("Database not found \"GEN.db\" \"%1\"").arg(sandbox.path("nowhere"))});
        QVERIFY(QSqlDatabase::contains("GEN.db"));
        // The second call meets the registered connection: no second box.
        sqlMgr.addDB("GEN.db", sandbox.path("nowhere"));
        QCOMPARE(responder.seen().size(), 1);
    }

    void aFileThatCannotBeOpenedIsNotAdopted()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        BoxResponder responder;
        responder.expectMessage(notOpenTitle, notOpenText.arg("GEN.db"));
        SqlMgr sqlMgr;
        QVERIFY(!sqlMgr.checkDBVersion(QDir(sandbox.path("nowhere")), "GEN.db", 0));
    }

    void aFileThatIsNoDatabaseIsNotAdoptedWithoutABox()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("SQL/GEN.db", QByteArray(4096, 'x'));
        BoxResponder responder;
        SqlMgr sqlMgr;
        QVERIFY(!sqlMgr.checkDBVersion(QDir(sandbox.path("SQL")), "GEN.db", 0));
        QVERIFY(responder.seen().isEmpty());
    }

    void theSameNameInTwoFoldersSharesTheFirstFile()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("one/GEN.db", "");
        sandbox.writeFile("two/GEN.db", "");
        SqlMgr sqlMgr;
        sqlMgr.addDB("GEN.db", sandbox.path("one"));
        MessageLog log;
        sqlMgr.addDB("GEN.db", sandbox.path("two"));
        QCOMPARE(QSqlDatabase::database("GEN.db").databaseName(), sandbox.path("one/GEN.db"));
        QVERIFY(log.messages().isEmpty());
    }

    void pragmasAreNotSetAgain()
    {
        Sandbox sandbox;
        SqlMgr sqlMgr;
        sqlMgr.addDB("GEN.db", sandbox.path("SQL"));
        valueOf("GEN.db", "PRAGMA synchronous = FULL");
        sqlMgr.addDB("GEN.db", sandbox.path("SQL"));
        QCOMPARE(valueOf("GEN.db", "PRAGMA synchronous").toInt(), 2);
    }

    void rightVersions_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("version");
        QTest::newRow("GEN") << "GEN.db" << 0;
        QTest::newRow("M3D") << "M3D.db" << 3;
        QTest::newRow("OBJ") << "OBJ.db" << 4;
        QTest::newRow("TXY") << "TXY.db" << 1;
    }

    void rightVersions()
    {
        Sandbox sandbox;
        QFETCH(QString, file);
        QFETCH(int, version);
        SqlMgr sqlMgr;
        QVERIFY(sqlMgr.checkDBVersion(QDir(sandbox.path("SQL")), file, version));
        QVERIFY(QSqlDatabase::database(file, false).isOpen());
    }

    void anEmptyFileHasVersionZero_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("GEN") << "GEN.db";
        QTest::newRow("WPT") << "WPT.db";
        QTest::newRow("ROUTE") << "ROUTE.db";
    }

    void anEmptyFileHasVersionZero()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QFETCH(QString, file);
        sandbox.writeFile("SQL/" + file, "");
        SqlMgr sqlMgr;
        QVERIFY(sqlMgr.checkDBVersion(QDir(sandbox.path("SQL")), file, 0));
    }

    void anotherVersionEndsTheProcess_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("found");
        QTest::addColumn<int>("expected");
        QTest::newRow("older") << "M3D.db" << 2 << 3;
        QTest::newRow("newer") << "M3D.db" << 4 << 3;
        QTest::newRow("the label is M3D for all") << "GEN.db" << 1 << 0;
    }

    void anotherVersionEndsTheProcess()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QFETCH(QString, file);
        QFETCH(int, found);
        QFETCH(int, expected);
        sandbox.createDatabase(file, found);
        const ChildRun run = runChildProcess({"--check", file, QString::number(expected)});
        QVERIFY(run.finished);
        QCOMPARE(run.exitStatus, QProcess::CrashExit);
        const QString text = QString("M3D : La version attendue est %1.\nLa version trouvée est %2.\n"
                                     "Le programme va s'arréter.")
                                 .arg(expected)
                                 .arg(found);
        // Critical icon (3), one button, the connection gone before the box; nothing runs after it.
        QCOMPARE(run.output, QString("Erreur de version de base de données|%1|3|1|removed\n").arg(text));
        QVERIFY2(run.log.contains("CGlobalVar::initDB M3D : erreur de version"), qPrintable(run.log));
        QVERIFY2(!run.log.contains("still in use"), qPrintable(run.log));
    }

    void theEndClosesTheDefaultConnectionOnly()
    {
        Sandbox sandbox;
        QSqlDatabase byDefault = QSqlDatabase::addDatabase("QSQLITE");
        byDefault.setDatabaseName(":memory:");
        QVERIFY(byDefault.open());
        {
            SqlMgr sqlMgr;
            sqlMgr.addDB("GEN.db", sandbox.path("SQL"));
        }
        QVERIFY(!byDefault.isOpen());
        QVERIFY(QSqlDatabase::database("GEN.db", false).isOpen());
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--check")
        return checkInChild(arguments.value(2), arguments.value(3).toInt());
    TestSqlMgr test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sqlmgr.moc"
