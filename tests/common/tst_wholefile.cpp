// A file that is replaced only by a whole new one, whatever the disk does.
#include "wholefile.h"

#include "boxresponder.h"
#include "smalldisk.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QByteArray before(10000, 'o');
const QByteArray after(30000, 'n');

/// Some pages of a disk, with the file "A" on it.
struct Disk
{
    explicit Disk(int bytes = 65536)
    {
        put("A", before);
        disk.reset(new SmallDisk(folder.path(), bytes));
    }

    QString path(const QString& name) const
    {
        return folder.filePath(name);
    }
    void put(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray get(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList names() const
    {
        return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
    }

    QTemporaryDir folder;
    QScopedPointer<SmallDisk> disk;
};

} // namespace

class TestWholeFile : public QObject
{
    Q_OBJECT

    static void expectFull(BoxResponder& boxes, const QString& path)
    {
        boxes.expectMessage("Erreur d'écriture",
                            QString("Le fichier %1 n'a pas pu être écrit en entier : le disque est "
                                    "peut-être plein.\nCe qu'il contenait avant est conservé.")
                                .arg(path));
    }

private slots:
    void theNewContentStands_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("longer") << QByteArray(20000, 'n');
        QTest::newRow("shorter") << QByteArray("n\r\n\0n", 5);
        QTest::newRow("nothing") << QByteArray();
    }
    void theNewContentStands()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir folder;
        for (int i = 0; i < 2; ++i)
            QCOMPARE(writeWholeFile(folder.filePath("A"), content), WriteEnd::Whole);
        QFile file(folder.filePath("A"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"A"});
    }

    void aPathMayHoldBackslashes()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("Data"));
        QCOMPARE(writeWholeFile(folder.path() + "\\Data\\A", after), WriteEnd::Whole);
        QVERIFY(QFile::exists(folder.filePath("Data/A")));
    }

    void whatCannotBeOpenedIsNotTold()
    {
        BoxResponder boxes; // none comes
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("folder/inside"));
        QCOMPARE(writeWholeFile(folder.filePath("nowhere/A"), after), WriteEnd::NotOpened);
        QCOMPARE(writeWholeFile(folder.filePath("folder"), after), WriteEnd::NotOpened);
        QCOMPARE(writeWholeFile(QString(), after), WriteEnd::NotOpened);
        QVERIFY(QFile::exists(folder.filePath("folder/inside")));
        QVERIFY(!QFile::exists(folder.filePath("nowhere")));
    }

    void whatIsNoFileIsNotReplaced()
    {
        QTemporaryDir folder;
        const QString pipe = folder.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        BoxResponder boxes; // none comes
        QCOMPARE(writeWholeFile(pipe, after), WriteEnd::NotOpened);
        QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
    }

    void aFileBehindALinkIsReplaced()
    {
        QTemporaryDir folder;
        QVERIFY(QFile::link(folder.filePath("A"), folder.filePath("link")));
        for (const QByteArray& content : {before, after}) {
            QCOMPARE(writeWholeFile(folder.filePath("link"), content), WriteEnd::Whole);
            QFile file(folder.filePath("A"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), content);
            QVERIFY(QFileInfo(folder.filePath("link")).isSymLink());
        }
    }

    void aFullDiskLeavesTheFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("of pages") << after;
        QTest::newRow("of few bytes") << QByteArray("few"); // fits into the writer's buffer
    }
    void aFullDiskLeavesTheFile()
    {
        SKIP_WITHOUT_MOUNTS();
        QFETCH(QByteArray, content);
        Disk on;
        on.disk->fill();
        BoxResponder boxes;
        expectFull(boxes, on.path("A"));
        QCOMPARE(writeWholeFile(on.path("A"), content), WriteEnd::NotWhole);
        QVERIFY(boxes.allUsed());
        QCOMPARE(boxes.seen().value(0).icon, QMessageBox::Warning);
        QCOMPARE(on.get("A"), before);
        on.disk->makeRoom();
        QCOMPARE(on.names(), QStringList{"A"}); // nothing half is left beside it
        QCOMPARE(writeWholeFile(on.path("A"), content), WriteEnd::Whole);
        QCOMPARE(on.get("A"), content);
    }

    void aDiskThatFillsHalfWayLeavesTheFile()
    {
        SKIP_WITHOUT_MOUNTS();
        Disk on(8 * 4096); // the old file, and room for half of the new one
        BoxResponder boxes;
        expectFull(boxes, on.path("A"));
        QCOMPARE(writeWholeFile(on.path("A"), after), WriteEnd::NotWhole);
        QCOMPARE(on.get("A"), before);
        QCOMPARE(on.names(), QStringList{"A"});
    }

    void aFullDiskMakesNoNewFile()
    {
        SKIP_WITHOUT_MOUNTS();
        Disk on;
        on.disk->fill();
        BoxResponder boxes;
        expectFull(boxes, on.path("B"));
        QCOMPARE(writeWholeFile(on.path("B"), "few"), WriteEnd::NotWhole);
        QVERIFY(!QFile::exists(on.path("B")));
        QVERIFY(!hasRoomBeside(on.path("A"), 1));
        on.disk->makeRoom();
        QVERIFY(hasRoomBeside(on.path("A"), 1));
        QVERIFY(!hasRoomBeside(on.path("A"), 65536));
        QCOMPARE(on.names(), QStringList{"A"});
    }

    void aDiskThatTakesNoFurtherFileMakesNoNewOne()
    {
        SKIP_WITHOUT_MOUNTS();
        Disk on;
        on.disk->takeNoFurtherFile();
        BoxResponder boxes;
        expectFull(boxes, on.path("B"));
        QCOMPARE(writeWholeFile(on.path("B"), "few"), WriteEnd::NotWhole);
        QVERIFY(boxes.allUsed());
        QCOMPARE(writeWholeFile(on.path("A"), after), WriteEnd::Whole); // in its place
        QCOMPARE(on.get("A"), after);
        QCOMPARE(on.names(), QStringList{"A"});
    }

    void aNameThatIsTooLongIsNotTold()
    {
        QTemporaryDir folder;
        BoxResponder boxes; // none comes
        QCOMPARE(writeWholeFile(folder.filePath(QString(300, 'N')), after), WriteEnd::NotOpened);
        QVERIFY(QDir(folder.path()).entryList(QDir::Files).isEmpty());
    }

    void theLongestNameIsWrittenAlsoOverTheOldFile()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QString(255, 'N'));
        BoxResponder boxes; // none comes
        for (const QByteArray& content : {before, after}) {
            QCOMPARE(writeWholeFile(path, content), WriteEnd::Whole);
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), content);
        }
    }

    void aReadOnlyDiskIsNotTold()
    {
        SKIP_WITHOUT_MOUNTS();
        Disk on;
        on.disk->protect();
        BoxResponder boxes; // none comes
        QCOMPARE(writeWholeFile(on.path("A"), after), WriteEnd::NotOpened);
        QCOMPARE(writeWholeFile(on.path("B"), after), WriteEnd::NotOpened);
        QCOMPARE(on.get("A"), before);
        on.disk->unprotect();
        QCOMPARE(writeWholeFile(on.path("A"), after), WriteEnd::Whole);
    }

    void aFolderThatTakesNoNewFileLetsTheOldOneBeWritten_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("longer") << after;
        QTest::newRow("shorter") << QByteArray("n");
        QTest::newRow("nothing") << QByteArray();
    }
    void aFolderThatTakesNoNewFileLetsTheOldOneBeWritten()
    {
        SKIP_WITHOUT_MOUNTS();
        QFETCH(QByteArray, content);
        Disk on;
        const WritableFile writable(on.path("A"));
        on.disk->protect();
        QCOMPARE(writeWholeFile(on.path("A"), content), WriteEnd::Whole);
        QCOMPARE(on.get("A"), content);
    }

    void aFullDiskLeavesAFileThatIsWrittenInItsPlace()
    {
        SKIP_WITHOUT_MOUNTS();
        Disk on;
        on.disk->fill();
        const WritableFile writable(on.path("A"));
        on.disk->protect();
        BoxResponder boxes;
        expectFull(boxes, on.path("A"));
        QCOMPARE(writeWholeFile(on.path("A"), after), WriteEnd::NotWhole);
        QVERIFY(boxes.allUsed());
        QCOMPARE(on.get("A"), before);
    }
};

TEST_MAIN_WITH_MOUNTS(TestWholeFile)
#include "tst_wholefile.moc"
