// The program's settings file where nothing can be written: the window ends in silence, and the old file stays.
#include "boxresponder.h"
#include "sandbox.h"
#include "smalldisk.h"
#include "windowsession.h"

#include <QApplication>
#include <QDir>
#include <QtTest>

class TestSettingsFaults : public QObject
{
    Q_OBJECT

private slots:
    void aFullDiskKeepsTheSettings_data()
    {
        QTest::addColumn<bool>("full");
        QTest::addColumn<int>("pagesLeft");
        QTest::newRow("full") << true << 0;
        QTest::newRow("full but for the lock") << true << 1;
        QTest::newRow("read-only") << false << 0;
    }
    void aFullDiskKeepsTheSettings()
    {
        SKIP_WITHOUT_MOUNTS();
        QFETCH(bool, full);
        QFETCH(int, pagesLeft);
        Sandbox sandbox;
        sandbox.setSetting("view/zoom", 9);
        sandbox.setSetting("view/route", "BE");
        SmallDisk disk(sandbox.path("Tools/Trajector"), 65536);
        QVERIFY(QDir::setCurrent(sandbox.path("Tools/Trajector")));
        const QByteArray before = sandbox.readFile("Tools/Trajector/trajector.ini");
        QVERIFY(before.contains("route=BE"));
        BoxResponder boxes; // none comes
        WindowSession session;
        session.action("actVor")->trigger();
        full ? disk.fill(pagesLeft) : disk.protect();
        session.close();
        QCOMPARE(sandbox.readFile("Tools/Trajector/trajector.ini"), before);
        full ? disk.makeRoom() : disk.unprotect();
        QCOMPARE(QDir(sandbox.path("Tools/Trajector")).entryList(QDir::Files), QStringList{"trajector.ini"});
        // With room again the next run is kept.
        {
            WindowSession next;
            next.action("actVor")->trigger();
        }
        QCOMPARE(sandbox.setting("view/showVor").toString(), QString("false"));
        QCOMPARE(sandbox.setting("view/route").toString(), QString("BE"));
        QVERIFY(QDir::setCurrent(QDir::rootPath())); // off the disk
    }

    void aFolderInTheFilesPlaceGivesTheDefaultsAndStays()
    {
        Sandbox sandbox;
        sandbox.removeFile("Tools/Trajector/trajector.ini");
        sandbox.writeFile("Tools/Trajector/trajector.ini/inside.txt", "kept");
        BoxResponder boxes;
        boxes.expectFiles("Sélectionner le répertoire de travail", {sandbox.path("Work")});
        WindowSession session;
        QVERIFY(session.action("actVor")->isChecked());
        session.close();
        QCOMPARE(sandbox.readFile("Tools/Trajector/trajector.ini/inside.txt"), QByteArray("kept"));
    }

    void aFolderThatIsGoneEndsInSilence()
    {
        Sandbox sandbox;
        BoxResponder boxes; // none comes
        WindowSession session;
        QVERIFY(QDir(sandbox.path("Tools/Trajector")).removeRecursively());
        session.close();
        QVERIFY(!QDir(sandbox.path("Tools/Trajector")).exists());
        QVERIFY(QDir().mkpath(sandbox.path("Tools/Trajector")));
    }
};

TEST_MAIN_WITH_MOUNTS(TestSettingsFaults)
#include "tst_settingsfaults.moc"
