// Which archives a folder holds, and the aircraft that each tells.
#include "aircraftarchives.h"
#include "podbytes.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const char* const makerText = "<bgno>\n\t<make> ---- maker ----\n\t  Boeing 737-800 \t\n<endo>\n";
const char* const numbersText = "<acid> registration\n  F-GABC \n"
                                "\t<048a> maximum speed\n\t340\n"
                                "<043a>\n250\n"
                                "<045a>\n-1500\n"
                                "<044a>\n 140\t\n"
                                "<CEIL>\n41000\n";

} // namespace

class TestAircraftArchives : public QObject
{
    Q_OBJECT

    static void write(const QString& path, const QByteArray& bytes)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), static_cast<qint64>(bytes.size()));
    }

    static CAircraftData aircraft(const QVector<QPair<QByteArray, QByteArray>>& entries)
    {
        const QTemporaryDir folder;
        write(folder.filePath("a.pod"), podArchive(entries));
        return readAircraftArchive(folder.filePath("a.pod"));
    }

    static void compareZeros(const CAircraftData& data)
    {
        QCOMPARE(data.acid, QString());
        QCOMPARE(data.speedMax, 0);
        QCOMPARE(data.speedCruise, 0);
        QCOMPARE(data.speedVert, 0);
        QCOMPARE(data.speedApp, 0);
        QCOMPARE(data.ceiling, 0);
    }

private slots:
    void newRecordIsAllZero()
    {
        const CAircraftData data;
        QCOMPARE(data.make, QString());
        compareZeros(data);
        QCOMPARE(data.altCruise, 0);
        QCOMPARE(data.unused, 0.0);
    }

    void everyTagGoesIntoItsField()
    {
        const CAircraftData data = aircraft({{"DATA\\737.NFO", makerText}, {"DATA\\737.SVH", numbersText}});
        QCOMPARE(data.make, QString("Boeing 737-800"));
        QCOMPARE(data.acid, QString("F-GABC"));
        QCOMPARE(data.speedMax, 340);
        QCOMPARE(data.speedCruise, 250);
        QCOMPARE(data.speedVert, -1500);
        QCOMPARE(data.speedApp, 140);
        QCOMPARE(data.ceiling, 41000);
        QCOMPARE(data.altCruise, 0);
    }

    void valueThatIsNoNumberGivesZero()
    {
        const CAircraftData data = aircraft(
            {{"A.SVH", "<048a>\nfast\n<043a>\n250 kt\n<045a>\n0x10\n<044a>\n12.5\n<CEIL>\n99999999999\n<acid>\nX\n"}});
        QCOMPARE(data.acid, QString("X"));
        QCOMPARE(data.speedMax, 0);
        QCOMPARE(data.speedCruise, 0);
        QCOMPARE(data.speedVert, 0);
        QCOMPARE(data.speedApp, 0);
        QCOMPARE(data.ceiling, 0);
    }

    void lastOfSeveralNumberEntriesCounts()
    {
        const CAircraftData data =
            aircraft({{"A.SVH", "<acid>\nFIRST\n<043a>\n100\n"}, {"A.NFO", makerText}, {"B.SVH", "<acid>\nLAST\n"}});
        QCOMPARE(data.acid, QString("LAST"));
        QCOMPARE(data.speedCruise, 0);
    }

    void textBehindATagAndBlanksAroundAValueDoNoHarm()
    {
        const CAircraftData data = aircraft({{"A.SVH", "xx <043a> cruise <fast>\r\n \t 250 \t \r\n"}});
        QCOMPARE(data.speedCruise, 250);
    }

    void withoutANumberEntryTheTagsAreLookedForInTheMakersText()
    {
        const CAircraftData data = aircraft({{"A.NFO", QByteArray(makerText) + numbersText}});
        QCOMPARE(data.make, QString("Boeing 737-800"));
        QCOMPARE(data.acid, QString("F-GABC"));
        QCOMPARE(data.ceiling, 41000);
    }

    void withoutAMakersEntryTheNameIsEmpty()
    {
        const CAircraftData data = aircraft({{"A.SVH", numbersText}});
        QCOMPARE(data.make, QString());
        QCOMPARE(data.speedMax, 340);
    }

    void archiveWithoutEntriesIsAllZero()
    {
        const CAircraftData data = aircraft({});
        QCOMPARE(data.make, QString());
        compareZeros(data);
    }

    void missingArchiveIsAllZero()
    {
        const CAircraftData data = readAircraftArchive("/nowhere/a.pod");
        QCOMPARE(data.make, QString());
        compareZeros(data);
    }

    void fileThatIsNoArchiveIsAllZero()
    {
        const QTemporaryDir folder;
        write(folder.filePath("a.pod"), QByteArray(5000, '\x7F'));
        const CAircraftData data = readAircraftArchive(folder.filePath("a.pod"));
        QCOMPARE(data.make, QString());
        compareZeros(data);
    }

    void archivesOfAllFoldersAreFound()
    {
        const QTemporaryDir folder;
        for (const char* name : {"a.pod", "b.POD", "sub/c.Pod", "sub/deeper/d.pod", "e.pod.bak", "pod", "f.podx"}) {
            write(folder.filePath(name), "x");
        }
        QVERIFY(QDir().mkpath(folder.filePath("folder.pod")));
        QStringList found;
        for (const QString& path : aircraftArchives(folder.path())) {
            found << QDir(folder.path()).relativeFilePath(path);
        }
        found.sort();
        QCOMPARE(found, QStringList({"a.pod", "b.POD", "sub/c.Pod", "sub/deeper/d.pod"}));
    }

    void linksAreNotFollowed()
    {
        const QTemporaryDir folder;
        write(folder.filePath("real/a.pod"), "x");
        QVERIFY(QFile::link(folder.filePath("real/a.pod"), folder.filePath("link.pod")));
        QCOMPARE(aircraftArchives(folder.path()), QStringList{folder.filePath("real/a.pod")});
    }

    void missingFolderHasNone()
    {
        QVERIFY(aircraftArchives("/nowhere/Aircraft").isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestAircraftArchives)
#include "tst_aircraftarchives.moc"
