// A script of a name that never ends: the window stands still and has to be ended from outside. What is not saved is
// lost, all else is as it was.
#include "sandbox.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

namespace {

/// Starts the program beside this one and waits until it has written `mark` into its debug output.
bool startsAndTells(QProcess& program, const QByteArray& mark)
{
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QDir(QCoreApplication::applicationDirPath()).filePath("ZephanTrajector"), QStringList());
    QByteArray told;
    while (!told.contains(mark)) {
        if (!program.waitForReadyRead(60000))
            return false;
        told += program.readAll();
    }
    return true;
}

void endFromOutside(QProcess& program)
{
    program.kill();
    program.waitForFinished(60000);
}

} // namespace

class TestEndlessScript : public QObject
{
    Q_OBJECT

private slots:
    void aProgramEndedInAnEndlessScriptLeavesItsFilesWhole()
    {
        Sandbox sandbox;
        const QString name = "A\"+(function(){mainWindow.doSomething('it begins');for(;;);})()+\"B";
        sandbox.addNavaid({{"ukey", "RBT4FR"}, {"iden", "RBT"}, {"name", name}});
        sandbox.setSetting("view/zoom", 9);
        const QByteArray settings = sandbox.readFile("Tools/Trajector/trajector.ini");
        const QStringList databases = sandbox.filesIn("SQL");

        QProcess program;
        QVERIFY(startsAndTells(program, "it begins"));
        QVERIFY2(!program.waitForFinished(3000), "the engine has learned to end a script");
        endFromOutside(program);

        QCOMPARE(program.exitStatus(), QProcess::CrashExit);
        QCOMPARE(sandbox.readFile("Tools/Trajector/trajector.ini"), settings);
        QCOMPARE(sandbox.filesIn("SQL"), databases); // no journal of a half-done change
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "PRAGMA integrity_check").toString(), QString("ok"));
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "SELECT name FROM NAV").toString(), name);

        // As the user gets out of it: another tool of the suite takes the name away.
        sandbox.sqlValue(dbfile::gen, "UPDATE NAV SET name = 'RAMBOUILLET'");
        QVERIFY(startsAndTells(program, "Start ended"));
        endFromOutside(program);
    }
};

QTEST_MAIN(TestEndlessScript)
#include "tst_endlessscript.moc"
