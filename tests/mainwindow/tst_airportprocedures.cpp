// All stored procedures of an airport deleted at once, with and without an update file. No button does it.
#include "deletionwords.h"
#include "editingworld.h"
#include "proceduretest.h"

#include <QTableWidget>
#include <QtTest>

namespace {

const QString heading = QStringLiteral("Effacer les SID/STAR");

} // namespace

class TestAirportProcedures : public ProcedureTest
{
    Q_OBJECT

private slots:
    void allOfAnAirportAreDeleted()
    {
        boxes->expectMessage("", heading, erase);
        boxes->expectMessage("Effacement SID/STAR", "Les SID/STAR de FR001 ont été effacé");
        win->window->delAllSIDSTAR("FR001");
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("AWAY"));
        QCOMPARE(win->told(), QString("clearSS()"));
        QVERIFY(!data->has("FR001"));
        QCOMPARE(outline(*win->window->findChild<QTreeWidget*>("treeWSid")), QString("OUT[LFPO BAMES] OUT2[ETAMP]"));
    }

    void theQuestionForAllNamesTheAirport()
    {
        QString question;
        boxes->expectDialog("QMessageBox", [&](QDialog* dialog) {
            question = qobject_cast<QMessageBox*>(dialog)->informativeText();
            dialog->reject();
        });
        win->window->delAllSIDSTAR("FR001");
        QCOMPARE(question, QString("Voulez vous effacer tous les SID/STAR de FR001 ?"));
    }

    void allOfAnAirportAreExportedWithoutItsKey()
    {
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectMessage(procedureExportTitle,
                             "Les SIDSTAR de FR001 ont été effacé et enregistrer pour export \ndans " +
                                 data->shownName("FR001"));
        win->window->delAllSIDSTAR("FR001");
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("AWAY"));
        QCOMPARE(win->told(), QString("clearSS()"));
        QCOMPARE(data->bytes("FR001"), QByteArray("ROUTE;SIDSTAR;-;sapt"));
    }

    void theFileOfAllThatCannotBeWrittenIsTold()
    {
        data->block("FR001");
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectMessage(procedureExportTitle, "Le SIDSTAR FR001 a été effacé mais l'export à échoué");
        win->window->delAllSIDSTAR("FR001");
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("AWAY"));
    }

    void allOfAnAirportAreKept()
    {
        boxes->expectMessage("", heading, keep);
        win->window->delAllSIDSTAR("FR001");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().size(), 1);
        QCOMPARE(rows->names(), QString("AWAY IN IN2 OUT OUT2"));
        QCOMPARE(win->told(), QString());
    }

private:
    void startOfAll() override
    {
        win->add({"LFPO"});
    }

    void startOfEach() override
    {
        data.reset(new DataFolder({"FR001"}));
        rows->addProcedure("OUT", 2, {"LFPO", "BAMES"});
        rows->addProcedure("OUT2", 2, {"ETAMP"});
        rows->addProcedure("IN", 1, {"PGS", "LFPO"});
        rows->addProcedure("IN2", 1, {"CGN"});
        rows->add({{"sapt", "FR002"}, {"strm", "AWAY"}, {"sqnm", 10}, {"styp", 2}});
        emit win->grid()->cellClicked(0, 1);
        win->clearCalls();
    }

    void endOfEach() override
    {
        data.reset();
    }

    QScopedPointer<DataFolder> data;
};

QTEST_MAIN(TestAirportProcedures)
#include "tst_airportprocedures.moc"
