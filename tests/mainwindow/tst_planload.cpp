// Loading a plan through the real command: what a file keeps and loses, and files that are not what they should be.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QTableWidget>
#include <QtTest>

namespace {

const QString loadTitle = QStringLiteral("Ouvrir un plan de vol existant");
const QString damageTitle = QStringLiteral("Chargement plan de vol");

/// A file of two points in the writer's form, without the indentation.
const char twoPoints[] = "<bgno> == Generated with zephan Trajector ==\n"
                         "<form> ---- Format Type -----------------\n"
                         "wpno=1, format=FM01\n"
                         "<desc> ========== Description ===========\n"
                         "<wpnt> this line is a description and no point\n"
                         "<vers> ---------- Version number --------\n"
                         "7\n"
                         "<ceil> -----------Average ceil ----------\n"
                         "13000\n"
                         "<wpnt> --------- Waypoint ---------------\n"
                         "airp\n"
                         "<bgno> ========== BEGIN OBJECT ==========\n"
                         "<name> ---------- Waypoint name ---------\n"
                         "Orly \xC3\xA9toile\n"
                         "<iden> ---------- Waypoint identity -----\n"
                         "LFPO\n"
                         "<llps> ---------- Lat/lon,alt position --\n"
                         "175411.000,8494.000,291\n"
                         "<dbky> ---------- Database key ----------\n"
                         "FR001\n"
                         "<user> ---------- Waypoint usage --------\n"
                         "airp\n"
                         "<altd> --- Altitude (feet) at WPT -------\n"
                         "292\n"
                         "<tkof> --- Take off runway --------------\n"
                         "24\n"
                         "<land> --- Landing runway ---------------\n"
                         "NONE\n"
                         "<mark> --- Terminated mark- -------------\n"
                         "\n"
                         "<endo> ========== END OBJECT ============\n"
                         "<wpnt> --------- Waypoint ---------------\n"
                         "snav\n"
                         "<name> ---------- Waypoint name ---------\n"
                         "COGNAC\n"
                         "<iden> ---------- Waypoint identity -----\n"
                         "CGN\n"
                         "<llps> ---------- Lat/lon,alt position --\n"
                         "162900.000,6300.000,0\n"
                         "<user> ---------- Waypoint usage --------\n"
                         "snav\n"
                         "<altd> --- Altitude (feet) at WPT -------\n"
                         "0\n"
                         "<endo> ========== END OBJECT ============\n";

} // namespace

class TestPlanLoad : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow);
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void aFileFillsPlanGridAndMap()
    {
        load(twoPoints);
        QCOMPARE(win->idents(), QString("LFPO CGN"));
        QCOMPARE(win->probe->calls("addPointToFp"),
                 (QStringList{"addPointToFp(LatLng(48.72528,2.35944),\"Orly étoile\")",
                              "addPointToFp(LatLng(45.25,1.75),\"COGNAC\")"}));
        QCOMPARE(win->cell(0, 6), QString("210.0"));
        QCOMPARE(win->cell(0, 5), QString("187°"));
        QCOMPARE(win->cell(0, 7), QString("105"));
        QCOMPARE(win->current(), qMakePair(1, 1));
        const CFpLine& line = *win->plan().lines[0];
        QCOMPARE(line.fpType, QString("airp"));
        QCOMPARE(line.name, QString("Orly étoile"));
        QCOMPARE(line.dbKey, QString("FR001"));
        QCOMPARE(line.usage, QString("airp"));
        QCOMPARE(line.elev, 291);
        QCOMPARE(line.altd, 292);
        QCOMPARE(line.tkof, QString("24"));
        QCOMPARE(line.land, QString("NONE"));
        QCOMPARE(line.mark, QString(""));
    }

    void whatTheFileDoesNotHoldComesFromANewLine()
    {
        load(twoPoints);
        const CFpLine& line = *win->plan().lines[1];
        QCOMPARE(line.speed, 120);
        QCOMPARE(line.navType, 0);
        QCOMPARE(line.freq, 0.0);
        QCOMPARE(line.ctry, QString());
        QCOMPARE(line.tkof, QString("NONE"));
        QCOMPARE(line.land, QString("NONE"));
        QCOMPARE(win->plan().fplVersion, 0);
        // A navaid of type 8 comes back with the general picture.
        QCOMPARE(win->grid()->item(1, 0)->icon().pixmap(16, 16).toImage(),
                 QIcon(":/icon/images/Img05.bmp").pixmap(16, 16).toImage());
    }

    void carriageReturnsAndIndentationReadTheSame_data()
    {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::addColumn<QByteArray>("indentation");
        QTest::newRow("carriage returns") << QByteArray("\r\n") << QByteArray();
        QTest::newRow("tabs") << QByteArray("\n") << QByteArray("\t\t");
        QTest::newRow("both and blanks behind") << QByteArray("  \r\n") << QByteArray(" \t ");
    }
    void carriageReturnsAndIndentationReadTheSame()
    {
        QFETCH(QByteArray, lineEnd);
        QFETCH(QByteArray, indentation);
        QByteArray bytes = indentation + QByteArray(twoPoints);
        bytes.replace("\n", "\n" + indentation).replace("\n", "\r").replace("\r", lineEnd);
        load(bytes);
        QCOMPARE(win->idents(), QString("LFPO CGN"));
        QCOMPARE(win->plan().lines[0]->name, QString("Orly étoile"));
        QCOMPARE(win->plan().lines[0]->mark, QString(""));
        QCOMPARE(win->plan().lines[0]->tkof, QString("24"));
        QCOMPARE(win->plan().lines[1]->lonS, 6300.0);
    }

    void capitalTagsAreNoTags()
    {
        load(QByteArray(twoPoints) + "<NAME>\nother\n<iden\nXX\n");
        QCOMPARE(win->idents(), QString("LFPO CGN"));
        QCOMPARE(win->plan().lines[1]->name, QString("COGNAC"));
    }

    void everyPointOfTheFileCountsForTheNextClickedOne()
    {
        load(twoPoints);
        win->addClicked("WPT", 47.0, 2.0);
        QCOMPARE(win->idents(), QString("LFPO CGN WPT003"));
    }

    void aSavedPlanComesBack()
    {
        win->sandbox.sql(dbfile::gen, "UPDATE APT SET alat = 175411.1236, alon = -8494.9994 WHERE ukey = 'FR001'");
        win->add({"LFPO", "BAMES-W1"});
        win->addClicked("WPT", 47.123456, -1.123456);
        win->plan().lines[1]->mark = "M 1";
        boxes->expectMessage("Enregistrement plan de vol", "Le plan de vol LFPO_WPT001.FPL a été enregistré");
        boxes->expectMessage("Enregistrement position initiale",
                             "Voulez vous définir LFPO comme départ dans AeoZephan ?", QMessageBox::Cancel);
        win->click("btnSaveFlightPlan");
        const QList<CFpLinePtr> before = win->plan().lines;
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        boxes->expectFiles(loadTitle, {win->sandbox.path("Flightplan/LFPO_WPT001.FPL")});
        win->click("btnLoadFlightPlan");
        const QList<CFpLinePtr> after = win->plan().lines;
        QCOMPARE(after.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(before[i] != after[i]);
            QVERIFY(qAbs(after[i]->latS - before[i]->latS) <= 0.001);
            QVERIFY(qAbs(after[i]->lonS - before[i]->lonS) <= 0.001);
            QCOMPARE(after[i]->name, before[i]->name);
            QCOMPARE(after[i]->dbKey, before[i]->dbKey);
            QCOMPARE(after[i]->altd, before[i]->altd);
            QCOMPARE(after[i]->tkof, before[i]->tkof);
        }
        QCOMPARE(after[0]->latS, 175411.124);
        QCOMPARE(after[0]->lonS, -8494.999);
        QCOMPARE(after[0]->tkof, QString(""));
        QCOMPARE(after[2]->tkof, QString("NONE"));
        QCOMPARE(after[1]->mark, QString("M 1"));
        // The file holds the usage, so the type word of a waypoint changes.
        QCOMPARE(before[1]->fpType, QString("wayp"));
        QCOMPARE(after[1]->fpType, QString("uswp"));
    }

    void aFileWithoutPointsLeavesAnEmptyPlan_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no byte") << QByteArray();
        QTest::newRow("a head alone") << QByteArray(twoPoints).left(100);
        QTest::newRow("fields before any point") << QByteArray("<name>\nX\n<llps>\n1,2,3\n<altd>\n5\n");
        QTest::newRow("zero bytes") << QByteArray(5000, '\0');
        QTest::newRow("no text") << QByteArray("\xFF\xFE\x00\x01<wp", 7) + QByteArray(3000, '\xE9');
        QTest::newRow("one long line") << QByteArray(2000000, 'x');
    }
    void aFileWithoutPointsLeavesAnEmptyPlan()
    {
        QFETCH(QByteArray, bytes);
        win->sandbox.writeFile("Flightplan/BAD.FPL", bytes);
        boxes->expectFiles(loadTitle, {win->sandbox.path("Flightplan/BAD.FPL")});
        boxes->expectMessage(damageTitle, "Le fichier " + win->sandbox.path("Flightplan/BAD.FPL") +
                                              " n'est pas un plan de vol : il ne contient aucun point");
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->probe->calls("pushFP"), QStringList());
        QCOMPARE(win->enabledPlanCommands(), 5);
        // The window goes on working.
        win->add({"LFPO"});
        QCOMPARE(win->grid()->rowCount(), 1);
    }

    void aDamagedFileIsReadAsFarAsItGoes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("idents");
        const QByteArray point = "<wpnt>\nuswp\n<iden>\nA\n<user>\nuswp\n";
        QTest::newRow("a position of two parts") << point + "<llps>\n100,200\n"
                                                 << "A";
        QTest::newRow("an empty position") << point + "<llps>\n\n"
                                           << "A";
        QTest::newRow("a position at the end of the file") << point + "<llps>"
                                                           << "A";
        QTest::newRow("a field before the first point") << "<iden>\nX\n" + point << "A";
    }
    void aDamagedFileIsReadAsFarAsItGoes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, idents);
        win->sandbox.writeFile("Flightplan/BAD.FPL", bytes);
        boxes->expectFiles(loadTitle, {win->sandbox.path("Flightplan/BAD.FPL")});
        boxes->expectMessage(damageTitle, "Le plan de vol " + win->sandbox.path("Flightplan/BAD.FPL") +
                                              " est endommagé, champs ignorés : 1");
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->idents(), idents);
        QCOMPARE(win->plan().lines[0]->latS, 0.0);
        QCOMPARE(win->plan().lines[0]->lonS, 0.0);
        QCOMPARE(win->grid()->rowCount(), 1);
        QCOMPARE(win->enabledPlanCommands(), 5);
    }

    void wildNumbersAreSafe_data()
    {
        QTest::addColumn<QByteArray>("position");
        for (const char* position :
             {"1e300,1e300,0", "nan,nan,0", "inf,-inf,0", "-1e18,1e18,99999999999", "a,b,c", "1,2,3,4,5", ",,"})
            QTest::newRow(position) << QByteArray(position);
    }
    void wildNumbersAreSafe()
    {
        QFETCH(QByteArray, position);
        load("<wpnt>\nuswp\n<llps>\n" + position + "\n<altd>\nxyz\n<wpnt>\nairp\n<llps>\n1,2,3\n<wpnt>\n");
        QCOMPARE(win->plan().lines.size(), 3);
        QCOMPARE(win->grid()->rowCount(), 3);
        QCOMPARE(win->plan().lines[0]->altd, 0);
    }

private:
    void load(const QByteArray& bytes)
    {
        win->sandbox.writeFile("Flightplan/TEST.FPL", bytes);
        boxes->expectFiles(loadTitle, {win->sandbox.path("Flightplan/TEST.FPL")});
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestPlanLoad)
#include "tst_planload.moc"
