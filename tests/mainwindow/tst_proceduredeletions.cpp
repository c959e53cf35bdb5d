// Stored procedures deleted, with and without an update file, and taken out of the trees.
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "deletionwords.h"
#include "editingworld.h"
#include "proceduretest.h"

#include <QFile>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace {

const QString heading = QStringLiteral("Effacer un SID/STAR");
const QString doneTitle = QStringLiteral("Effacement STAR");

} // namespace

class TestProcedureDeletions : public ProcedureTest
{
    Q_OBJECT

private slots:
    void theQuestionNamesTheProcedure()
    {
        QString text;
        QString question;
        QStringList buttons;
        boxes->expectDialog("QMessageBox", [&](QDialog* dialog) {
            auto* box = qobject_cast<QMessageBox*>(dialog);
            text = box->text();
            question = box->informativeText();
            for (const auto button : {QMessageBox::Ok, QMessageBox::Save, QMessageBox::Cancel})
                buttons << box->button(button)->text();
            dialog->reject();
        });
        select("treeWSid", "OUT");
        win->click("pbDelSID");
        QCOMPARE(text, heading);
        QCOMPARE(question, QString("Voulez vous effacer le SID/STAR OUT ?"));
        QCOMPARE(buttons, (QStringList{erase, eraseAndExport, keep}));
    }

    void aSidIsDeletedInTheWordsOfAStar()
    {
        select("treeWSid", "OUT");
        boxes->expectMessage("", heading, erase);
        boxes->expectMessage(doneTitle, "La STAR OUT a été effacé");
        win->click("pbDelSID");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(1).icon, QMessageBox::Information);
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT2"));
        QCOMPARE(outline(*tree("treeWSid")), QString("OUT2[ETAMP]"));
        QCOMPARE(outline(*tree("treeWStar")), QString("IN[PGS LFPO] IN2[CGN]"));
        QCOMPARE(win->told(), QString("clearSS()"));
        QVERIFY(!data->has("OUT"));
    }

    void aStarIsDeleted()
    {
        select("treeWStar", "IN");
        boxes->expectMessage("", heading, erase);
        boxes->expectMessage(doneTitle, "La STAR IN a été effacé");
        win->click("pbDelSTAR");
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("AWAY IN2 OUT OUT2"));
        QCOMPARE(outline(*tree("treeWStar")), QString("IN2[CGN]"));
        QCOMPARE(outline(*tree("treeWSid")), QString("OUT[LFPO BAMES] OUT2[ETAMP]"));
        QCOMPARE(win->told(), QString("clearSS()"));
        QVERIFY(!data->has("IN"));
    }

    void theRowsAndTheDrawingAreGoneBeforeTheMessage()
    {
        select("treeWSid", "OUT");
        win->clearCalls();
        QString names;
        QString told;
        QString shown;
        boxes->expectMessage("", heading, erase);
        boxes->expectDialog("QMessageBox", [&](QDialog* dialog) {
            names = rows->names();
            told = win->told();
            shown = outline(*tree("treeWSid"));
            dialog->accept();
        });
        win->click("pbDelSID");
        QCOMPARE(names, QString("AWAY IN IN2 OUT2"));
        QCOMPARE(told, QString("clearSS()"));
        QCOMPARE(shown, QString("OUT[LFPO BAMES] OUT2[ETAMP]"));
    }

    void aSelectedPointStandsForItsProcedure_data()
    {
        QTest::addColumn<QString>("treeName");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("name");
        QTest::newRow("SID") << "treeWSid"
                             << "pbDelSID"
                             << "OUT";
        QTest::newRow("STAR") << "treeWStar"
                              << "pbDelSTAR"
                              << "IN";
    }
    void aSelectedPointStandsForItsProcedure()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(QString, name);
        tree(treeName)->setCurrentItem(tree(treeName)->topLevelItem(0)->child(1));
        boxes->expectMessage("", heading, erase);
        boxes->expectMessage(doneTitle, "La STAR " + name + " a été effacé");
        win->click(button);
        QVERIFY(boxes->allUsed());
        QVERIFY(!rows->names().split(' ').contains(name));
        QCOMPARE(tree(treeName)->topLevelItemCount(), 1);
    }

    void aDeletedProcedureIsExported_data()
    {
        aSelectedPointStandsForItsProcedure_data();
    }
    void aDeletedProcedureIsExported()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(QString, name);
        select(treeName, name);
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectMessage(procedureExportTitle, "Le SIDSTAR " + name +
                                                       " a été effacé et enregistrer pour export \ndans " +
                                                       data->shownName(name));
        win->click(button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(1).icon, QMessageBox::Information);
        QVERIFY(!rows->names().split(' ').contains(name));
        QCOMPARE(tree(treeName)->topLevelItemCount(), 1);
        QCOMPARE(win->told(), QString("clearSS()"));
        QCOMPARE(data->bytes(name), "ROUTE;SIDSTAR;-;strm;" + name.toUtf8());
    }

    void aFileThatCannotBeWrittenIsTold()
    {
        data->block("OUT");
        select("treeWSid", "OUT");
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectMessage(procedureExportTitle, "Le SIDSTAR OUT a été effacé mais l'export à échoué");
        win->click("pbDelSID");
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT2"));
        QCOMPARE(win->told(), QString("clearSS()"));
    }

    void aNameThatIsNoFileNameIsTold()
    {
        rows->addProcedure("NO/FOLDER", 2, {"BAMES"});
        clickOnTheAirport();
        select("treeWSid", "NO/FOLDER");
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectMessage(procedureExportTitle, "Le SIDSTAR NO/FOLDER a été effacé mais l'export à échoué");
        win->click("pbDelSID");
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT OUT2"));
    }

    void anOlderFileIsReplaced()
    {
        data->write("OUT", QByteArray(1000, 'x'));
        select("treeWSid", "OUT");
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectAnyMessage();
        win->click("pbDelSID");
        QCOMPARE(data->bytes("OUT"), QByteArray("ROUTE;SIDSTAR;-;strm;OUT"));
    }

    void theReaderOfUpdateFilesStopsAtTheFile()
    {
        select("treeWSid", "OUT");
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectAnyMessage();
        win->click("pbDelSID");
        rows->addProcedure("OUT", 2, {"BAMES"});
        QFile file(QCoreApplication::applicationDirPath() + "/Data/OUT.CSV");
        QVERIFY(file.open(QIODevice::ReadOnly));
        boxes->expectMessage("Erreur SQL", "La base de données ROUTE est inconnue.\nROUTE;SIDSTAR;-;strm;OUT");
        CIODataBase exchange;
        QVERIFY(!exchange.importDB(file, CNavGlobalVar::instance()));
        QVERIFY(rows->names().split(' ').contains("OUT"));
    }

    void aKeptProcedureIsGoneFromTheTreeUntilTheNextClick_data()
    {
        aSelectedPointStandsForItsProcedure_data();
    }
    void aKeptProcedureIsGoneFromTheTreeUntilTheNextClick()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(QString, name);
        select(treeName, name);
        boxes->expectMessage("", heading, keep);
        win->click(button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().size(), 1);
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT OUT2"));
        QCOMPARE(win->told(), QString());
        QVERIFY(!data->has(name));
        QCOMPARE(tree(treeName)->topLevelItemCount(), 1);
        QVERIFY(tree(treeName)->findItems(name, Qt::MatchExactly).isEmpty());
        clickOnTheAirport();
        QCOMPARE(tree(treeName)->findItems(name, Qt::MatchExactly).size(), 1);
    }

    void theNameAloneDecidesWhatIsDeleted()
    {
        rows->add({{"sapt", "FR002"}, {"strm", "OUT"}, {"sqnm", 10}});
        select("treeWSid", "OUT");
        boxes->expectMessage("", heading, erase);
        boxes->expectAnyMessage();
        win->click("pbDelSID");
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT2"));
    }

    void theFlagIsNotLookedAt()
    {
        QTreeWidgetItem* item = tree("treeWSid")->topLevelItem(0);
        for (const bool flag : {false, true}) {
            rows->addProcedure("OUT", 2, {"BAMES"});
            boxes->expectMessage("", heading, erase);
            boxes->expectMessage(doneTitle, "La STAR OUT a été effacé");
            win->window->delSIDSTAR(item, flag);
            QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT2"));
        }
        // The item is its caller's.
        QCOMPARE(outline(*tree("treeWSid")), QString("OUT[LFPO BAMES] OUT2[ETAMP]"));
    }

    void aRefusedDeletionIsReportedAndTheRestIsDone()
    {
        win->sandbox.sql(dbfile::route,
                         "CREATE TRIGGER locked BEFORE DELETE ON SIDSTAR BEGIN SELECT RAISE(ABORT, 'locked'); END");
        select("treeWSid", "OUT");
        boxes->expectMessage("", heading, erase);
        boxes->expectAnyMessage();
        boxes->expectMessage(doneTitle, "La STAR OUT a été effacé");
        win->click("pbDelSID");
        win->sandbox.sql(dbfile::route, "DROP TRIGGER locked");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(1).title, QString("SQL Error"));
        QCOMPARE(win->told(), QString("clearSS()"));
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT OUT2"));
    }

    void unlessOneItemIsSelectedNothingHappens_data()
    {
        QTest::addColumn<QString>("treeName");
        QTest::addColumn<QString>("button");
        QTest::newRow("SID") << "treeWSid"
                             << "pbDelSID";
        QTest::newRow("STAR") << "treeWStar"
                              << "pbDelSTAR";
        QTest::newRow("SID, all") << "treeWSid"
                                  << "pbDelAllSID";
        QTest::newRow("STAR, all") << "treeWStar"
                                   << "pbDelAllSTAR";
    }
    void unlessOneItemIsSelectedNothingHappens()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        win->click(button);
        tree(treeName)->setSelectionMode(QAbstractItemView::MultiSelection);
        tree(treeName)->selectAll();
        QVERIFY(tree(treeName)->selectedItems().size() > 1);
        win->click(button);
        QVERIFY(boxes->seen().isEmpty());
        QCOMPARE(tree(treeName)->topLevelItemCount(), 2);
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT OUT2"));
    }

    void theAllButtonsTakeOneProcedureOutOfTheTreeOnly_data()
    {
        QTest::addColumn<QString>("treeName");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("point");
        for (const bool point : {false, true}) {
            QTest::newRow(point ? "SID, a point of it" : "SID") << "treeWSid"
                                                                << "pbDelAllSID" << point;
            QTest::newRow(point ? "STAR, a point of it" : "STAR") << "treeWStar"
                                                                  << "pbDelAllSTAR" << point;
        }
    }
    void theAllButtonsTakeOneProcedureOutOfTheTreeOnly()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(bool, point);
        QTreeWidgetItem* top = tree(treeName)->topLevelItem(0);
        tree(treeName)->setCurrentItem(point ? top->child(0) : top);
        win->click(button);
        QVERIFY(boxes->seen().isEmpty());
        QCOMPARE(win->told(), QString());
        QCOMPARE(outline(*tree(treeName)), QString(treeName == "treeWSid" ? "OUT2[ETAMP]" : "IN2[CGN]"));
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT OUT2"));
    }

    void eachButtonLooksAtItsOwnTree()
    {
        select("treeWSid", "OUT");
        win->click("pbDelSTAR");
        win->click("pbDelAllSTAR");
        QVERIFY(boxes->seen().isEmpty());
        QCOMPARE(tree("treeWSid")->topLevelItemCount(), 2);
        QCOMPARE(tree("treeWStar")->topLevelItemCount(), 2);
    }

private:
    void startOfAll() override
    {
        win->add({"LFPO"});
    }

    void startOfEach() override
    {
        data.reset(new DataFolder({"OUT", "IN"}));
        rows->addProcedure("OUT", 2, {"LFPO", "BAMES"});
        rows->addProcedure("OUT2", 2, {"ETAMP"});
        rows->addProcedure("IN", 1, {"PGS", "LFPO"});
        rows->addProcedure("IN2", 1, {"CGN"});
        rows->add({{"sapt", "FR002"}, {"strm", "AWAY"}, {"sqnm", 10}, {"styp", 2}});
        clickOnTheAirport();
        win->bringToFront("dockWDebug");
        win->clearCalls();
    }

    void endOfEach() override
    {
        win->sandbox.sql(dbfile::route, "DROP TRIGGER IF EXISTS locked");
        for (const char* name : {"treeWSid", "treeWStar"})
            tree(name)->setSelectionMode(QAbstractItemView::SingleSelection);
        data.reset();
    }

    /// Fills both trees with the procedures of LFPO, the plan's only line.
    void clickOnTheAirport() const
    {
        emit win->grid()->cellClicked(0, 1);
    }

    void select(const QString& treeName, const QString& name) const
    {
        const QList<QTreeWidgetItem*> found = tree(treeName)->findItems(name, Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        tree(treeName)->setCurrentItem(found.first());
        QCOMPARE(tree(treeName)->selectedItems().size(), 1);
    }

    QScopedPointer<DataFolder> data;
};

QTEST_MAIN(TestProcedureDeletions)
#include "tst_proceduredeletions.moc"
