// The line "startupSituation" of the simulator's ini file: rewritten when the pilot agrees, everything else as it was.
#include "boxresponder.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QDir>
#include <QtTest>

namespace {

const QString iniFile = QStringLiteral("system/AeoZephan.ini");

} // namespace

class TestStartupLine : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow);
        win->add({"LFPO"});
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void anAcceptedQuestionRewritesTheLine_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const QByteArray line = "startupSituation=Saved Simulations/PARIS ORLY.SIT";
        QTest::newRow("the last line feed goes")
            << QByteArray("[UI]\nstartupSituation=Default.sit\n") << "[UI]\n" + line;
        QTest::newRow("no last line feed") << QByteArray("[UI]\nstartupSituation=Default.sit") << "[UI]\n" + line;
        QTest::newRow("other lines keep order and spacing")
            << QByteArray("; head\n\n[UI] \n  a = 1\t\nstartupSituation = old\n\n\tb=  2  \n[Z]\nlast=\xE9\xC3\xA9\n")
            << "; head\n\n[UI] \n  a = 1\t\n" + line + "\n\n\tb=  2  \n[Z]\nlast=\xE9\xC3\xA9";
        QTest::newRow("every line that so starts")
            << QByteArray("startupSituation=1\nx\nstartupSituation=2\nstartupSituationFolder=3\n")
            << line + "\nx\n" + line + "\n" + line;
        QTest::newRow("no such line") << QByteArray("[UI]\na=1\n\n") << QByteArray("[UI]\na=1\n");
        QTest::newRow("other case and blanks ahead")
            << QByteArray("StartupSituation=1\n startupSituation=2\nstartupsituation=3\n;startupSituation=4\n")
            << QByteArray("StartupSituation=1\n startupSituation=2\nstartupsituation=3\n;startupSituation=4");
        QTest::newRow("carriage returns")
            << QByteArray("a=1\r\nstartupSituation=1\r\nb=2\r\n") << "a=1\n" + line + "\nb=2";
        QTest::newRow("empty file") << QByteArray() << QByteArray();
    }
    void anAcceptedQuestionRewritesTheLine()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        win->sandbox.writeFile(iniFile, before);
        answer(QMessageBox::Ok);
        QCOMPARE(win->sandbox.readFile(iniFile), after);
    }

    void aSlashStandsInTheLineOnEverySystem()
    {
        answer(QMessageBox::Ok);
        const QByteArray bytes = win->sandbox.readFile(iniFile);
        QVERIFY(bytes.endsWith("\n[UI]\nstartupSituation=Saved Simulations/PARIS ORLY.SIT"));
        QVERIFY(!bytes.contains('\\'));
    }

    void aRefusedQuestionLeavesTheFile()
    {
        const QByteArray before = win->sandbox.readFile(iniFile);
        answer(QMessageBox::Cancel);
        QCOMPARE(win->sandbox.readFile(iniFile), before);
        QVERIFY(before.endsWith("startupSituation=Default.sit\n"));
        QVERIFY(win->sandbox.hasFile("Saved Simulations/PARIS ORLY.SIT"));
    }

    void aMissingFileIsSilentAndStaysMissing()
    {
        win->sandbox.removeFile(iniFile);
        answer(QMessageBox::Ok);
        QVERIFY(!win->sandbox.hasFile(iniFile));
        QVERIFY(win->sandbox.hasFile("Saved Simulations/PARIS ORLY.SIT"));
    }

    void aMissingFolderIsSilent()
    {
        QVERIFY(QDir(win->sandbox.path("system")).removeRecursively());
        answer(QMessageBox::Ok);
        QVERIFY(!QDir(win->sandbox.path("system")).exists());
    }

    void theLineIsRewrittenEvenWhereNoSituationCouldBeWritten()
    {
        QVERIFY(QDir(win->sandbox.path("Saved Simulations")).removeRecursively());
        answer(QMessageBox::Ok);
        QVERIFY(win->sandbox.readFile(iniFile).endsWith("startupSituation=Saved Simulations/PARIS ORLY.SIT"));
    }

    void aSaveOfThePlanRewritesTheLineToo()
    {
        win->add({"LFBO"});
        boxes->expectMessage("Enregistrement plan de vol", "Le plan de vol LFPO_LFBO.FPL a été enregistré");
        boxes->expectMessage("Enregistrement position initiale",
                             "Voulez vous définir LFPO comme départ dans AeoZephan ?");
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
        QVERIFY(win->sandbox.readFile(iniFile).endsWith("startupSituation=Saved Simulations/PARIS ORLY.SIT"));
    }

    void anAccentedNameGoesIntoTheLineAsTheFileHasIt()
    {
        win->sandbox.sql(dbfile::gen, "UPDATE APT SET name = 'Orly été' WHERE ukey = 'FR001'");
        win->window->sFpLineDel();
        win->add({"LFPO"});
        answer(QMessageBox::Ok);
        QVERIFY(
            win->sandbox.readFile(iniFile).endsWith("startupSituation=Saved Simulations/ORLY \xC3\x89T\xC3\x89.SIT"));
        QVERIFY(win->sandbox.hasFile("Saved Simulations/ORLY ÉTÉ.SIT"));
    }

private:
    void answer(QMessageBox::StandardButton button)
    {
        boxes->expectMessage("Enregistrement position initiale",
                             "Voulez vous définir LFPO comme départ dans AeoZephan ?", button);
        win->click("btnStartPos");
        QVERIFY(boxes->allUsed());
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestStartupLine)
#include "tst_startupline.moc"
