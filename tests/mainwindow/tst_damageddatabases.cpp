// Databases with a table gone or with columns missing: each command of the window, and that it goes on.
#include "boxresponder.h"
#include "databaselock.h"
#include "messagelog.h"
#include "planwindow.h"
#include "storedprocedures.h"
#include "windowsession.h"

#include "cnavglobalvar.h"
#include "databaselayout.h"
#include "mainwindow.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

class TestDamagedDatabases : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        BoxResponder loading;
        win.reset(new PlanWindow([](const Sandbox& sandbox) {
            sandbox.addCountry("FR", "FRANCE");
            sandbox.addAirway({{"nvk1", "W1"}, {"nvi1", "BAMES"}, {"nvk2", "N1"}, {"nvi2", "PGS"}});
            StoredProcedures(sandbox).addProcedure("OLD", 2, {"LFPO", "PGS"});
        }));
    }
    void cleanupTestCase()
    {
        win.reset();
    }

    void theWindowGoesOn_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("remains");
        const QVector<QStringList> tables = {
            {dbfile::gen, "APT"}, {dbfile::gen, "RWY"},       {dbfile::gen, "NAV"},       {dbfile::gen, "CTY"},
            {dbfile::wpt, "WPT"}, {dbfile::route, "SIDSTAR"}, {dbfile::route, "ATSROUTE"}};
        for (const QStringList& table : tables) {
            const QByteArray name = table.last().toLatin1();
            QTest::addRow("%s is gone", name.constData()) << table.first() << table.last() << QString();
            QTest::addRow("%s has its first column", name.constData())
                << table.first() << table.last() << firstColumns(table.last(), 1);
            QTest::addRow("%s has its first four columns", name.constData())
                << table.first() << table.last() << firstColumns(table.last(), 4);
            QTest::addRow("%s holds texts for numbers", name.constData())
                << table.first() << table.last() << texts(table.last());
        }
    }
    void theWindowGoesOn()
    {
        QFETCH(QString, file);
        QFETCH(QString, table);
        QFETCH(QString, remains);
        win->sandbox.sql(file, "ALTER TABLE " + table + " RENAME TO kept");
        if (!remains.isEmpty())
            win->sandbox.sql(file, "CREATE TABLE " + table + " AS SELECT " + remains + " FROM kept");
        {
            BoxResponder boxes;
            boxes.closeOthers();
            runEveryCommand();
            savePlan(boxes);
        }
        if (!remains.isEmpty())
            win->sandbox.sql(file, "DROP TABLE " + table);
        win->sandbox.sql(file, "ALTER TABLE kept RENAME TO " + table);
        works();
    }

    void aDatabaseThatIsLockedAtTheStartIsLeftOutUntilTheNext()
    {
        win.reset();
        Sandbox sandbox;
        sandbox.addNavaid();
        sandbox.addWaypoint();
        {
            const DatabaseLock lock(sandbox.path("SQL/GEN.db"), DatabaseLock::Kind::Exclusive);
            BoxResponder boxes;
            WindowSession session;
            QCOMPARE(CNavGlobalVar::instance()->dbGEN, QString());
            QCOMPARE(CNavGlobalVar::instance()->dbWPT, QString("WPT.db"));
            boxes.expectAnyMessage(); // airports
            boxes.expectAnyMessage(); // navaids
            QVERIFY(session.load());
            QVERIFY(boxes.allUsed());
            QCOMPARE(boxes.seen().first().title, QString("SQL Error"));
            QCOMPARE(session.page().titles("listWptRte"), QStringList{"BAMES-BAMES"});
        }
        BoxResponder boxes; // none comes
        WindowSession session;
        QCOMPARE(CNavGlobalVar::instance()->dbGEN, QString("GEN.db"));
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "SELECT count(*) FROM NAV").toInt(), 1);
    }

private:
    static QString firstColumns(const QString& table, int count)
    {
        return columns(table).mid(0, count).join(", ");
    }

    static QString texts(const QString& table)
    {
        QStringList all;
        for (const QString& column : columns(table)) {
            // The names and keys stay: rows are to be found.
            const bool text = column.contains(
                QRegularExpression("\"(ukey|iden|name|ctry|rapt|sapt|strm|swid|aaid|nvk1|nvi1|nvk2|nvi2|cuid|cnam)\""));
            all << (text ? column : "'x\"y' AS " + column);
        }
        return all.join(", ");
    }

    static QStringList columns(const QString& table)
    {
        for (const DatabaseLayout& database : databaseLayouts()) {
            for (const TableLayout& layout : database.tables) {
                QStringList names;
                for (int i = 0; i < layout.columnCount; ++i)
                    names << '"' + QString(layout.columns[i].code) + '"';
                if (layout.name == table)
                    return names;
            }
        }
        return {};
    }

    void runEveryCommand()
    {
        MainWindow& window = *win->window;
        QVERIFY(QMetaObject::invokeMethod(&window, "readDataFromDB"));
        for (const char* text : {"LFPO", "PGS", "BAMES", "OLD"}) {
            window.findChild<QLineEdit*>("searchData")->setText(text);
            window.searchInTable(true);
            window.searchInTable(false);
        }
        window.sAddAptToFp("LFPO");
        window.sAddNavToFp("PGS-N1");
        window.sAddWptToFp("BAMES-W1");
        window.sAddNewWptToFp("WPT", 48.0, 2.0);
        for (int row = 0; row < win->grid()->rowCount(); ++row)
            emit win->grid()->cellClicked(row, 1);
        window.showSidStar("OLD");
        window.doViewRwy("LFPO");
        window.sATS("BAMES-W1", "");
        window.sATS("", "PGS-N1");
        window.sAddNavToDB("", 48.0, 2.0);
        window.sAddNavToDB("PGS-N1", 48.0, 2.0);
        window.sAddWptToDB("", 48.0, 2.0);
        window.sAddWptToDB("BAMES-W1", 48.0, 2.0);
        window.sDelNavFromDB("PGS-N1"); // kept: the question is closed
        window.sDelWptFromDB("BAMES-W1");
        for (const char* button : {"btnCreateSID", "btnCreateSTAR", "btnAddSid", "btnAddStar", "pbDelSID"})
            win->click(button);
    }

    /// Empties the plan and saves one of two clicked points, whatever the databases have come to.
    void savePlan(BoxResponder& boxes)
    {
        boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->window->askResetPlan();
        win->window->sAddNewWptToFp("ONE", 48.0, 2.0);
        win->window->sAddNewWptToFp("TWO", 49.0, 2.0);
        win->window->setPlanActions(true); // no airport, no button
        const QString name = win->idents().replace(' ', '_') + ".FPL";
        boxes.expectMessage("Enregistrement plan de vol", "Le plan de vol " + name + " a été enregistré");
        boxes.expectMessage("Enregistrement point de départ", "Vous devez choisir un aéroport en première ligne.");
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes.allUsed());
        QVERIFY(win->sandbox.readFile("Flightplan/" + name).endsWith("<endo> ========== END OBJECT ============\n"));
        boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->window->askResetPlan();
        QVERIFY(boxes.allUsed());
    }

    /// With the table back the same commands find its rows, all of them.
    void works()
    {
        BoxResponder boxes; // none comes
        QVERIFY(QMetaObject::invokeMethod(win->window.get(), "readDataFromDB"));
        QVERIFY(win->probe->evaluate("map.getZoom()").isValid());
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        QCOMPARE(win->idents(), QString("LFPO PGS BAMES"));
        emit win->grid()->cellClicked(0, 1);
        QCOMPARE(outline(*win->window->findChild<QTreeWidget*>("treeWSid")), QString("OLD[LFPO PGS]"));
        boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->window->askResetPlan();
        QVERIFY(boxes.allUsed());
    }

    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestDamagedDatabases)
#include "tst_damageddatabases.moc"
