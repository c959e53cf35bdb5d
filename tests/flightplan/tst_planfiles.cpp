// Saving and loading plans in the simulator's folder.
#include "boxresponder.h"
#include "planlines.h"
#include "planonsandbox.h"

#include <QDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QString openTitle = QStringLiteral("Ouvrir un plan de vol existant");
const QString loadTitle = QStringLiteral("Chargement plan de vol");

} // namespace

class TestPlanFiles : public QObject
{
    Q_OBJECT

    /// Loads a file of the sandbox as the user does.
    static QString load(PlanOnSandbox& on, BoxResponder& boxes, const QString& file)
    {
        boxes.expectFiles(openTitle, {on.sandbox.path(file)});
        return on.plan.loadFpl();
    }

    static QByteArray versionIn(const QByteArray& text)
    {
        return text.split('\n').value(6).trimmed();
    }

private slots:
    void savedFileToTheByte()
    {
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        on.plan.aircraft->ceiling = 12000;
        QVERIFY(on.plan.saveFpl("KSFO_OAK.FPL"));
        QCOMPARE(on.sandbox.readFile("Flightplan/KSFO_OAK.FPL"), QByteArray(airportAndNavaidText));
        QCOMPARE(on.sandbox.filesIn("Flightplan"), QStringList{"KSFO_OAK.FPL"});
        // No file with backslashes in its name beside the simulator's folder.
        QCOMPARE(on.sandbox.filesIn(".."), QStringList());
        QCOMPARE(on.plan.textLines.join("").toUtf8(), QByteArray(airportAndNavaidText));
    }

    void aFileWhoseReadFailsLeavesThePlan()
    {
        const QString path = "/sys/class/net/lo/speed"; // opens, and fails every read
        if (!QFile::exists(path)) {
            QSKIP("no such file on this machine");
        }
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        on.plan.fplVersion = 7;
        BoxResponder boxes;
        boxes.expectFiles(openTitle, {path});
        QCOMPARE(on.plan.loadFpl(), QString());
        QCOMPARE(on.plan.lines.size(), 2);
        QCOMPARE(on.plan.fplVersion, 7);
    }

    void accentsAreWrittenAsTheReaderReadsThem()
    {
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        on.plan.lines.first()->name = QString::fromUtf8("Orléans");
        QVERIFY(on.plan.saveFpl("A.FPL"));
        on.plan.clearLines();
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.lines.first()->name, QString::fromUtf8("Orléans"));
    }

    void savingTwiceRaisesTheVersionByOne()
    {
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        QVERIFY(on.plan.saveFpl("A.FPL"));
        QCOMPARE(versionIn(on.sandbox.readFile("Flightplan/A.FPL")), QByteArray("1"));
        QVERIFY(on.plan.saveFpl("A.FPL"));
        QCOMPARE(versionIn(on.sandbox.readFile("Flightplan/A.FPL")), QByteArray("2"));
        QCOMPARE(on.plan.fplVersion, 2);
    }

    void shorterPlanReplacesALongerFile()
    {
        PlanOnSandbox on;
        on.sandbox.writeFile("Flightplan/A.FPL", QByteArray(100000, 'x'));
        on.plan.lines = airportAndNavaid();
        on.plan.aircraft->ceiling = 12000;
        QVERIFY(on.plan.saveFpl("A.FPL"));
        QCOMPARE(on.sandbox.readFile("Flightplan/A.FPL"), QByteArray(airportAndNavaidText));
    }

    void missingFolderFailsAndStillCounts()
    {
        PlanOnSandbox on;
        QVERIFY(QDir(on.sandbox.path("Flightplan")).removeRecursively());
        on.plan.lines = airportAndNavaid();
        QVERIFY(!on.plan.saveFpl("A.FPL"));
        QCOMPARE(on.plan.fplVersion, 1);
        QCOMPARE(on.plan.textLines.value(4), QString("\t<vers> ---------- Version number --------\n\t1\n"));
    }

    void folderInTheFilesPlaceFails()
    {
        PlanOnSandbox on;
        QVERIFY(QDir().mkpath(on.sandbox.path("Flightplan/A.FPL/inside")));
        on.plan.lines = airportAndNavaid();
        QVERIFY(!on.plan.saveFpl("A.FPL"));
        QVERIFY(QDir(on.sandbox.path("Flightplan/A.FPL/inside")).exists());
    }

    void aNameWithAZeroByteIsNoFiles()
    {
        PlanOnSandbox on;
        on.sandbox.writeFile("Flightplan/A", "another's");
        on.plan.lines = airportAndNavaid();
        on.plan.startLine.latS = 11.0;
        BoxResponder boxes; // none comes: the disk is not full
        const QString name = QString("A") + QChar(0) + ".FPL";
        QVERIFY(!on.plan.saveFpl(name));
        QVERIFY(!on.plan.saveSit(name));
        QVERIFY(boxes.seen().isEmpty());
        QCOMPARE(on.sandbox.filesIn("Flightplan"), QStringList{"A"});
        QCOMPARE(on.sandbox.readFile("Flightplan/A"), QByteArray("another's"));
    }

    void emptyPlanWritesNoFile()
    {
        PlanOnSandbox on;
        QVERIFY(!on.plan.saveFpl("_.FPL"));
        QVERIFY(on.sandbox.filesIn("Flightplan").isEmpty());
        QVERIFY(on.plan.textLines.isEmpty());
    }

    void loadedPlanIsComputedShownAndDrawn()
    {
        PlanOnSandbox on;
        on.sandbox.writeFile("Flightplan/A.FPL", airportAndNavaidText);
        BoxResponder boxes;
        const QString script = load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(script, QString("clearFP();"
                                 "addPointToFp(new google.maps.LatLng(37.70014,-122.47562),\"San Francisco Intl\");"
                                 "addPointToFp(new google.maps.LatLng(37.72222,-122.22222),\"OAKLAND\");"
                                 "pushFP();"));
        QCOMPARE(on.grid.rowCount(), 2);
        QVERIFY(on.plan.lines.first()->dist > 10.0);
        QCOMPARE(on.plan.currentLine, on.plan.lines.last());
        QCOMPARE(boxes.seen().size(), 1);
        QCOMPARE(boxes.seen().value(0).choices, QStringList{"Fichier plan de vol (*.fpl)"});
        QCOMPARE(boxes.seen().value(0).value, on.sandbox.path("Flightplan"));
    }

    void loadedLinesTakeTheSpeedOfTheAircraft()
    {
        PlanOnSandbox on;
        on.plan.aircraft->speedCruise = 145;
        on.sandbox.writeFile("Flightplan/A.FPL", airportAndNavaidText);
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.lines.last()->speed, 145);
        QCOMPARE(on.plan.lines.last()->navType, 0);
    }

    void loadedAndSavedFileShowsVersionOne()
    {
        PlanOnSandbox on;
        QByteArray text = airportAndNavaidText;
        text.replace("--------\n\t1\n", "--------\n\t41\n");
        on.sandbox.writeFile("Flightplan/A.FPL", text);
        on.plan.fplVersion = 17;
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.fplVersion, 0);
        QVERIFY(on.plan.saveFpl("A.FPL"));
        QCOMPARE(versionIn(on.sandbox.readFile("Flightplan/A.FPL")), QByteArray("1"));
    }

    void coordinatesSurviveToAThousandth()
    {
        PlanOnSandbox on;
        on.plan.lines << pointAt(175411.123456, -440912.987654, "A") << pointAt(-0.000499, 1295999.9996, "B");
        QVERIFY(on.plan.saveFpl("A.FPL"));
        on.plan.clearLines();
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QVERIFY(qAbs(on.plan.lines.at(0)->latS - 175411.123456) < 0.001);
        QVERIFY(qAbs(on.plan.lines.at(0)->lonS + 440912.987654) < 0.001);
        QVERIFY(qAbs(on.plan.lines.at(1)->latS + 0.000499) < 0.001);
        QVERIFY(qAbs(on.plan.lines.at(1)->lonS - 1295999.9996) < 0.001);
    }

    void databaseWaypointComesBackAsAUserPoint()
    {
        PlanOnSandbox on;
        on.plan.lines << pointAt(0, 0, "A") << pointAt(0, 3600, "B");
        on.plan.lines.first()->fpType = "wayp";
        QVERIFY(on.plan.saveFpl("A.FPL"));
        on.plan.clearLines();
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.lines.first()->fpType, QString("uswp"));
    }

    void everyLoadedPointCountsAsAUserPoint()
    {
        PlanOnSandbox on;
        on.plan.userWptCount = 5;
        on.sandbox.writeFile("Flightplan/A.FPL", airportAndNavaidText);
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.userWptCount, 7);
    }

    void startPositionIsNeitherReadNorSet()
    {
        PlanOnSandbox on;
        on.plan.startLine.latS = 11.0;
        on.plan.startLine.lonS = 22.0;
        on.sandbox.writeFile("Flightplan/A.FPL", airportAndNavaidText);
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.startLine.latS, 11.0);
        QCOMPARE(on.plan.startLine.lonS, 22.0);
    }

    void readerDoesNotClearThePlan()
    {
        PlanOnSandbox on;
        on.plan.lines << pointAt(0, 0, "FIRST");
        on.sandbox.writeFile("Flightplan/A.FPL", airportAndNavaidText);
        BoxResponder boxes;
        load(on, boxes, "Flightplan/A.FPL");
        QCOMPARE(on.plan.lines.size(), 3);
        QCOMPARE(on.plan.lines.first()->iden, QString("FIRST"));
    }

    void cancelledDialogChangesNothing()
    {
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        BoxResponder boxes;
        boxes.expectFilesRejected(openTitle);
        QCOMPARE(on.plan.loadFpl(), QString());
        QCOMPARE(on.plan.lines.size(), 2);
        QCOMPARE(on.plan.userWptCount, 0);
    }

    void fileWithoutAPointIsRefusedAndChangesNothing()
    {
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        on.plan.refresh();
        on.plan.fplVersion = 3;
        on.sandbox.writeFile("Flightplan/A.FPL", "<vers>\n7\n<name>\nORLY\n");
        BoxResponder boxes;
        boxes.expectFiles(openTitle, {on.sandbox.path("Flightplan/A.FPL")});
        boxes.expectMessage(loadTitle, QString("Le fichier %1 n'est pas un plan de vol : il ne contient aucun point")
                                           .arg(on.sandbox.path("Flightplan/A.FPL")));
        QCOMPARE(on.plan.loadFpl(), QString());
        QCOMPARE(on.plan.lines.size(), 2);
        QCOMPARE(on.grid.rowCount(), 2);
        QCOMPARE(on.plan.fplVersion, 3);
        QCOMPARE(on.plan.userWptCount, 0);
    }

    void aFileTooLargeForAPlanIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<qint64>("size");
        QTest::newRow("a line without an end") << QByteArray(airportAndNavaidText) << qint64{1024} * 1024 * 1024;
        QTest::newRow("too many points") << QByteArray("<wpnt>\nuswp\n").repeated(20001) << qint64{0};
    }

    void aFileTooLargeForAPlanIsTold()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(qint64, size);
        PlanOnSandbox on;
        on.plan.lines = airportAndNavaid();
        on.plan.fplVersion = 7;
        const QString path = on.sandbox.path("Flightplan/A.FPL");
        on.sandbox.writeFile("Flightplan/A.FPL", bytes);
        QVERIFY(size == 0 || QFile::resize(path, size)); // of zeros, without a page
        BoxResponder boxes;
        boxes.expectFiles(openTitle, {path});
        boxes.expectMessage(
            loadTitle, QString("Le fichier %1 est trop grand pour un plan de vol : il n'est pas chargé").arg(path));
        QCOMPARE(on.plan.loadFpl(), QString());
        QVERIFY(boxes.allUsed());
        QCOMPARE(on.plan.lines.size(), 2);
        QCOMPARE(on.plan.fplVersion, 7);
        QCOMPARE(on.plan.userWptCount, 0);
    }

    void whatIsNoFileIsUnreadable()
    {
        PlanOnSandbox on;
        const QString path = on.sandbox.path("Flightplan/A.FPL");
        QVERIFY(QFile::link("/dev/urandom", path)); // lines without end
        BoxResponder boxes;                         // the dialogs alone
        QCOMPARE(load(on, boxes, "Flightplan/A.FPL"), QString());
        QVERIFY(QFile::remove(path));
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QCOMPARE(load(on, boxes, "Flightplan/A.FPL"), QString());
        QVERIFY(on.plan.lines.isEmpty());
    }

    void damagedFieldsAreSkippedWithOneMessage()
    {
        PlanOnSandbox on;
        on.sandbox.writeFile("Flightplan/A.FPL",
                             "<name>\nORLY\n<wpnt>\nuswp\n<llps>\n1.0\n<iden>\nA\n<wpnt>\nuswp\n<llps>\n\n<iden>\nB\n");
        BoxResponder boxes;
        boxes.expectFiles(openTitle, {on.sandbox.path("Flightplan/A.FPL")});
        boxes.expectMessage(
            loadTitle,
            QString("Le plan de vol %1 est endommagé, champs ignorés : 3").arg(on.sandbox.path("Flightplan/A.FPL")));
        QVERIFY(on.plan.loadFpl().startsWith("clearFP();addPointToFp("));
        QCOMPARE(on.plan.lines.size(), 2);
        QCOMPARE(on.plan.lines.last()->iden, QString("B"));
        QCOMPARE(on.grid.rowCount(), 2);
    }
};

QTEST_MAIN(TestPlanFiles)
#include "tst_planfiles.moc"
