// Where the simulator and the work folder are found, and the questions when they are not.
#include "simulatorfolders.h"

#include "cnavglobalvar.h"

#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"

#include <QFileDialog>
#include <QtTest>

namespace {

const QString rootTitle = QStringLiteral("Sélectionner le répertoire de Aeo Zephan");
const QString workTitle = QStringLiteral("Sélectionner le répertoire de travail");

CNavGlobalVar& located()
{
    locateFolders(*CNavGlobalVar::instance());
    return *CNavGlobalVar::instance();
}

QString quoted(const QString& label, const QString& path)
{
    return QStringLiteral("%1 \"%2\"").arg(label, path);
}

} // namespace

class TestSimulatorFolders : public QObject
{
    Q_OBJECT

private slots:
    void bothThereAsksNothing()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        BoxResponder responder;
        MessageLog log;
        CNavGlobalVar& navVar = located();
        QCOMPARE(navVar.dirZephan.path(), sandbox.root());
        QCOMPARE(navVar.dirWork.path(), sandbox.path("Work"));
        QCOMPARE(log.messages().size(), 3);
        QVERIFY(log.messages()[0].startsWith("QDir::current QDir( \"" + sandbox.path("Tools/Trajector") + '"'));
        QCOMPARE(log.messages()[1], quoted("dirZephan", sandbox.root()));
        QCOMPARE(log.messages()[2], quoted("dirWork", sandbox.path("Work")));
    }

    void aMissingSimulatorIsAskedFor()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile("AeoZephan.exe");
        BoxResponder responder;
        responder.expectFiles(rootTitle, {sandbox.path("Flightplan")});
        MessageLog log;
        CNavGlobalVar& navVar = located();
        QVERIFY(responder.allUsed());
        // The question starts at the program's own folder; the answer need not hold the simulator.
        QCOMPARE(responder.seen().value(0).value, QCoreApplication::applicationDirPath());
        QCOMPARE(navVar.dirZephan.path(), sandbox.path("Flightplan"));
        QCOMPARE(log.startingWith("dirZephan"), (QStringList{quoted("dirZephan", sandbox.root()), "dirZephan not found",
                                                             quoted("dirZephan", sandbox.path("Flightplan"))}));
    }

    void aCancelledQuestionLeavesAnEmptyPath()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile("AeoZephan.exe");
        sandbox.removeSettings();
        BoxResponder responder;
        responder.expectFilesRejected(rootTitle);
        responder.expectFilesRejected(workTitle);
        MessageLog log;
        CNavGlobalVar& navVar = located();
        QVERIFY(responder.allUsed());
        QCOMPARE(navVar.dirZephan.path(), QString());
        QCOMPARE(navVar.dirWork.path(), QString());
        QCOMPARE(log.messages().last(), quoted("dirWork", ""));
    }

    void theFirstStartAsksForTheWorkFolder()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeSettings();
        BoxResponder responder;
        responder.expectFiles(workTitle, {sandbox.path("Work")});
        MessageLog log;
        CNavGlobalVar& navVar = located();
        QVERIFY(responder.allUsed());
        QCOMPARE(responder.seen().value(0).value, QCoreApplication::applicationDirPath());
        QCOMPARE(navVar.dirWork.path(), sandbox.path("Work"));
        QCOMPARE(log.startingWith("dirWork"),
                 (QStringList{"dirWork not found", quoted("dirWork", sandbox.path("Work"))}));
    }

    void bothQuestionsShowFoldersOnlyAndKeepLinks()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile("AeoZephan.exe");
        sandbox.removeSettings();
        QStringList titles;
        QVector<QFileDialog::Options> options;
        BoxResponder responder;
        const auto look = [&titles, &options](QDialog* dialog) {
            titles << dialog->windowTitle();
            options << qobject_cast<QFileDialog*>(dialog)->options();
            dialog->reject();
        };
        responder.expectDialog("QFileDialog", look);
        responder.expectDialog("QFileDialog", look);
        located();
        QCOMPARE(titles, (QStringList{rootTitle, workTitle}));
        QCOMPARE(options.size(), 2);
        for (const QFileDialog::Options asked : options) {
            QVERIFY(asked.testFlag(QFileDialog::ShowDirsOnly));
            QVERIFY(asked.testFlag(QFileDialog::DontResolveSymlinks));
        }
    }

    void theWorkFolderIsAskedForOnce()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeSettings();
        BoxResponder responder;
        responder.expectFiles(workTitle, {sandbox.path("Work")});
        located();
        CNavGlobalVar::deleteInstance();
        QCOMPARE(located().dirWork.path(), sandbox.path("Work"));
        QCOMPARE(responder.seen().size(), 1);
    }

    void aWorkFolderThatIsGoneIsAskedForAgain()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.setSetting("directory/dirWork", sandbox.path("Gone"));
        BoxResponder responder;
        responder.expectFiles(workTitle, {sandbox.path("Work")});
        QCOMPARE(located().dirWork.path(), sandbox.path("Work"));
        QVERIFY(responder.allUsed());
    }
};

QTEST_MAIN(TestSimulatorFolders)
#include "tst_simulatorfolders.moc"
