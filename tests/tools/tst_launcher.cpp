// The launcher: what it asks, what it remembers, and what it puts into the simulator's folder.
#include "launcher.h"

#include "boxresponder.h"
#include "smalldisk.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

namespace {

const QString boxTitle = QStringLiteral("Zephan Trajector");
const QString dialogTitle = QStringLiteral("Choisir le dossier du simulateur, celui qui contient AeoZephan.exe");

void writeFile(const QString& path, const QByteArray& bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

} // namespace

class TestLauncher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        home = std::make_unique<QTemporaryDir>();
        QVERIFY(home->isValid());
        qputenv("XDG_CONFIG_HOME", path("config").toLocal8Bit());
        writeFile(path("sim/AeoZephan.exe"), "x");
        QVERIFY(QDir().mkpath(path("other")));
    }

    void nothingIsRememberedAtFirst()
    {
        QCOMPARE(launcher::rememberedSimulator(), QString());
    }

    void theAnswerIsTakenAndRemembered()
    {
        BoxResponder responder;
        responder.expectFiles(dialogTitle, {path("sim")});
        QCOMPARE(launcher::findSimulator(QString(), false), path("sim"));
        QVERIFY(responder.allUsed());
        QVERIFY(launcher::rememberSimulator(path("sim é ;,=")));
        QCOMPARE(launcher::rememberedSimulator(), path("sim é ;,="));
        QVERIFY(QFile::exists(path("config/zephan-trajector/launcher.ini")));
    }

    void aDamagedFileOfSettingsRemembersNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        // Two thousand million texts: QSettings would make room for them.
        QTest::newRow("a packed value") << QByteArray("[General]\n"
                                                      "simulator=@Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xff)\n");
        QTest::newRow("more than settings are") << "[General]\nsimulator=/sim\n" + QByteArray(4 * 1024 * 1024, '\n');
    }

    void aDamagedFileOfSettingsRemembersNothing()
    {
        QFETCH(QByteArray, bytes);
        writeFile(path("config/zephan-trajector/launcher.ini"), bytes);
        QCOMPARE(launcher::rememberedSimulator(), QString());
    }

    void whatIsNoFileOfSettingsIsNotWaitedFor()
    {
        const QString settings = path("config/zephan-trajector/launcher.ini");
        QVERIFY(QDir().mkpath(QFileInfo(settings).path()));
        QCOMPARE(mkfifo(QFile::encodeName(settings).constData(), 0600), 0);
        QCOMPARE(launcher::rememberedSimulator(), QString());
        QVERIFY(!launcher::rememberSimulator(path("sim")));
    }

    void aLockThatIsNotGivenBackIsNotWaitedFor()
    {
        QVERIFY(launcher::rememberSimulator(path("sim")));
        writeFile(path("config/zephan-trajector/launcher.ini.lock/inside.txt"), "x");
        QVERIFY(!launcher::rememberSimulator(path("other")));
        QCOMPARE(launcher::rememberedSimulator(), path("sim"));
    }

    void aFullDiskKeepsTheFolderRemembered()
    {
        SKIP_WITHOUT_MOUNTS();
        QVERIFY(launcher::rememberSimulator(path("sim")));
        SmallDisk disk(path("config/zephan-trajector"), 65536);
        disk.fill();
        QVERIFY(!launcher::rememberSimulator(path("other")));
        QCOMPARE(launcher::rememberedSimulator(), path("sim"));
    }

    void aRememberedFolderIsNotAskedFor()
    {
        QVERIFY(launcher::rememberSimulator(path("sim")));
        BoxResponder responder;
        QCOMPARE(launcher::findSimulator(QString(), false), path("sim"));
    }

    void aNamedFolderIsNotAskedFor()
    {
        QVERIFY(launcher::rememberSimulator(path("sim")));
        BoxResponder responder;
        QCOMPARE(launcher::findSimulator(path("other"), false), path("other"));
    }

    void askingAnewBeginsAtTheFolderRemembered()
    {
        QVERIFY(launcher::rememberSimulator(path("sim")));
        BoxResponder responder;
        responder.expectFilesRejected(dialogTitle);
        QCOMPARE(launcher::findSimulator(QString(), true), QString());
        QVERIFY(responder.allUsed());
        QCOMPARE(responder.seen().value(0).value, path("sim"));
    }

    void aFolderThatIsGoneIsAskedForAgain()
    {
        QVERIFY(launcher::rememberSimulator(path("gone")));
        BoxResponder responder;
        responder.expectMessage(boxTitle, "Le simulateur n'est plus dans ce dossier :\n" + path("gone") +
                                              "\n\nChoisissez son dossier.");
        responder.expectFiles(dialogTitle, {path("sim")});
        QCOMPARE(launcher::findSimulator(QString(), false), path("sim"));
        QVERIFY(responder.allUsed());
    }

    void anEmptyMountPointIsGoneToo()
    {
        QVERIFY(launcher::rememberSimulator(path("other")));
        BoxResponder responder;
        responder.expectAnyMessage(QMessageBox::Cancel);
        QCOMPARE(launcher::findSimulator(QString(), false), QString());
        QVERIFY(responder.allUsed());
    }

    void aFolderTakenWithoutSimulatorIsStillThere()
    {
        QVERIFY(launcher::rememberSimulator(path("other")));
        QVERIFY(QDir().mkpath(path("other/Tools/Trajector")));
        BoxResponder responder;
        QCOMPARE(launcher::findSimulator(QString(), false), path("other"));
    }

    void aFolderWithoutSimulatorIsTakenWhenWanted()
    {
        BoxResponder responder;
        responder.expectFiles(dialogTitle, {path("other")});
        responder.expectMessage(boxTitle,
                                "Il n'y a pas de AeoZephan.exe dans ce dossier :\n" + path("other") +
                                    "\n\nLe prendre quand même ?",
                                QMessageBox::Yes);
        QCOMPARE(launcher::chooseSimulator(QString()), path("other"));
        QVERIFY(responder.allUsed());
    }

    void aFolderWithoutSimulatorIsAskedForAgainWhenNot()
    {
        BoxResponder responder;
        responder.expectFiles(dialogTitle, {path("other")});
        responder.expectAnyMessage(QMessageBox::No);
        responder.expectFiles(dialogTitle, {path("sim")});
        QCOMPARE(launcher::chooseSimulator(QString()), path("sim"));
        QVERIFY(responder.allUsed());
    }

    void aNameWithMarkupIsShownAsItStands()
    {
        QVERIFY(QDir().mkpath(path("<b>other</b>")));
        BoxResponder responder;
        responder.expectFiles(dialogTitle, {path("<b>other</b>")});
        Qt::TextFormat format = Qt::RichText;
        responder.expectDialog("QMessageBox", [&format](QDialog* dialog) {
            format = qobject_cast<QMessageBox*>(dialog)->textFormat();
            dialog->reject();
        });
        QCOMPARE(launcher::chooseSimulator(QString()), QString());
        QVERIFY(responder.allUsed());
        QCOMPARE(format, Qt::PlainText);
    }

    void theFolderIsWrittenAsItStands()
    {
        QCOMPARE(launcher::programFolder(path("sim")), path("sim/Tools/Trajector"));
        QVERIFY(QDir().mkpath(path("sim/TOOLS/trajector")));
        QCOMPARE(launcher::programFolder(path("sim")), path("sim/TOOLS/trajector"));
    }

    void everythingIsPutThere()
    {
        layOutPackage();
        QCOMPARE(launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector")), QString());
        QCOMPARE(contentOf(path("sim/Tools/Trajector/maps/page/map.js")), QByteArray("page"));
        QVERIFY(QFileInfo(path("sim/Tools/Trajector/Data")).isDir());
        QVERIFY(QFileInfo(path("sim/Tools/Trajector/ZephanTrajector")).isExecutable());
        QVERIFY(!QFileInfo(path("sim/Tools/Trajector/maps/page/map.js")).isExecutable());
        QCOMPARE(QDir(path("sim/Tools/Trajector")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 3);
    }

    void onlyWhatDiffersIsReplaced()
    {
        layOutPackage();
        const QString folder = path("sim/Tools/Trajector");
        QCOMPARE(launcher::bringUpToDate(path("package"), folder), QString());
        const QDateTime past(QDate(2020, 1, 1), QTime(12, 0));
        QFile kept(folder + "/ZephanTrajector");
        QVERIFY(kept.open(QIODevice::ReadWrite) && kept.setFileTime(past, QFileDevice::FileModificationTime));
        kept.close();
        writeFile(folder + "/maps/page/map.js", "pagE");
        writeFile(folder + "/trajector.ini", "mine");
        writeFile(folder + "/Data/MINE.CSV", "mine");
        QCOMPARE(launcher::bringUpToDate(path("package"), folder), QString());
        QCOMPARE(QFileInfo(folder + "/ZephanTrajector").lastModified(), past);
        QCOMPARE(contentOf(folder + "/maps/page/map.js"), QByteArray("page"));
        QCOMPARE(contentOf(folder + "/trajector.ini"), QByteArray("mine"));
        QCOMPARE(contentOf(folder + "/Data/MINE.CSV"), QByteArray("mine"));
    }

    void theSettingsOfTheMapComeOnceAndAreTheUsers()
    {
        layOutPackage();
        writeFile(path("package/maps/service.js"), "shipped");
        const QString settings = path("sim/Tools/Trajector/maps/service.js");
        QCOMPARE(launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector")), QString());
        QCOMPARE(contentOf(settings), QByteArray("shipped"));
        writeFile(settings, "mine");
        QCOMPARE(launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector")), QString());
        QCOMPARE(contentOf(settings), QByteArray("mine"));
    }

    void aFolderThatCannotBeMadeIsTold()
    {
        layOutPackage();
        writeFile(path("sim/Tools"), "a file where the folder should be");
        QCOMPARE(launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector")),
                 "Zephan Trajector ne peut pas être placé dans le dossier du simulateur :\n" +
                     path("sim/Tools/Trajector") + "\nLe dossier ne peut pas être créé.");
    }

    void aFileThatCannotBeReplacedIsTold()
    {
        layOutPackage();
        const QString inTheWay = path("sim/Tools/Trajector/maps/page/map.js");
        QVERIFY(QDir().mkpath(inTheWay));
        const QString told = launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector"));
        QVERIFY2(told.startsWith("Zephan Trajector ne peut pas être placé dans le dossier du simulateur :\n" +
                                 inTheWay + '\n'),
                 qPrintable(told));
        QVERIFY(QFileInfo(inTheWay).isDir());
    }

    void aDiskThatIsReadOnlyIsTold()
    {
        SKIP_WITHOUT_MOUNTS();
        layOutPackage();
        SmallDisk disk(path("sim"), 65536);
        QCOMPARE(launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector")), QString());
        // Everything is there, so that nothing would have to be written.
        disk.protect();
        const QString told = launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector"));
        disk.unprotect();
        const QString start = "Zephan Trajector ne peut pas être placé dans le dossier du simulateur :\n" +
                              path("sim/Tools/Trajector") + '\n';
        QVERIFY2(told.startsWith(start) && told.size() > start.size(), qPrintable(told));
        QVERIFY2(!told.endsWith("Le dossier ne peut pas être créé."), qPrintable(told));
    }

    void aFullDiskKeepsTheOldFile_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("a large file") << 20000;
        QTest::newRow("a small file") << 2000; // kept in memory until the end
    }

    void aFullDiskKeepsTheOldFile()
    {
        SKIP_WITHOUT_MOUNTS();
        QFETCH(int, size);
        layOutPackage();
        const QString page = path("sim/Tools/Trajector/maps/page/map.js");
        writeFile(page, "older page");
        writeFile(path("package/maps/page/map.js"), QByteArray(size, 'p'));
        SmallDisk disk(path("sim/Tools/Trajector/maps/page"), 65536);
        disk.fill();
        const QString told = launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector"));
        QVERIFY(!told.isEmpty());
        QCOMPARE(contentOf(page), QByteArray("older page"));
    }

    void aFileThatCannotBeReadKeepsTheOldOne()
    {
        const QString unreadable = "/sys/class/net/lo/speed"; // opens, and fails every read
        if (!QFile::exists(unreadable))
            QSKIP("no such file on this machine");
        layOutPackage();
        const QString page = path("sim/Tools/Trajector/maps/page/map.js");
        writeFile(page, "older page");
        QVERIFY(QFile::remove(path("package/maps/page/map.js")));
        QVERIFY(QFile::link(unreadable, path("package/maps/page/map.js")));
        const QString start = "Zephan Trajector ne peut pas être placé dans le dossier du simulateur :\n" + page + '\n';
        const QString told = launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector"));
        QVERIFY2(told.startsWith(start), qPrintable(told));
        QCOMPARE(contentOf(page), QByteArray("older page"));
        // Nor does the comparison of two such files go on for ever.
        QVERIFY(QFile::remove(page) && QFile::link(unreadable, page));
        QVERIFY(launcher::bringUpToDate(path("package"), path("sim/Tools/Trajector")).startsWith(start));
    }

private:
    QString path(const QString& name) const
    {
        return home->filePath(name);
    }

    void layOutPackage() const
    {
        writeFile(path("package/ZephanTrajector"), "program");
        writeFile(path("package/maps/page/map.js"), "page");
        QVERIFY(QFile::setPermissions(path("package/ZephanTrajector"),
                                      QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
    }

    std::unique_ptr<QTemporaryDir> home;
};

TEST_MAIN_WITH_MOUNTS(TestLauncher)
#include "tst_launcher.moc"
