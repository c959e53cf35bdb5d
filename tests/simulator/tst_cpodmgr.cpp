// Archives byte for byte, and what damaged ones give.
#include "cpodmgr.h"
#include "podbytes.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <limits>

namespace {

constexpr qint32 largest = std::numeric_limits<qint32>::max();
constexpr int headerSize = 276;
constexpr int recordSize = 20;

using Entries = QVector<QPair<QByteArray, QByteArray>>;

void setNumber(QByteArray& bytes, int offset, qint32 value)
{
    qToLittleEndian(value, bytes.data() + offset);
}

/// The header of an archive with nothing behind it.
QByteArray header(int entryCount)
{
    QByteArray bytes(headerSize, '\0');
    setNumber(bytes, 88, entryCount);
    return bytes;
}

QByteArray record(int size, int offset)
{
    QByteArray bytes(recordSize, '\0');
    setNumber(bytes, 0, 11);
    setNumber(bytes, 4, size);
    setNumber(bytes, 8, offset);
    setNumber(bytes, 12, 33);
    setNumber(bytes, 16, 44);
    return bytes;
}

} // namespace

class TestCPodMgr : public QObject
{
    Q_OBJECT

    QTemporaryDir folder;

    QString write(const QByteArray& bytes)
    {
        const QString path = folder.filePath("aircraft.pod");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("the archive cannot be written");
        }
        return path;
    }

    QString write(const Entries& entries)
    {
        return write(podArchive(entries));
    }

    static QStringList names(const CPodMgr& pod)
    {
        QStringList result;
        for (const PodEntry* entry : pod.entries) {
            result << entry->name;
        }
        return result;
    }

private slots:
    void headerGoesIntoTheFields()
    {
        QByteArray bytes(headerSize, 'x');
        bytes.replace(0, 4, "ABCD");
        setNumber(bytes, 4, 1);
        bytes.replace(8, 80, "first" + QByteArray(75, '\0'));
        setNumber(bytes, 88, 0);
        setNumber(bytes, 92, 2);
        setNumber(bytes, 96, 3);
        setNumber(bytes, 100, -4);
        bytes.replace(104, 80, QByteArray(80, 's'));
        bytes.replace(184, 80, "\xC3\xA9" + QByteArray(78, 't'));
        setNumber(bytes, 264, 276);
        setNumber(bytes, 268, 5);
        setNumber(bytes, 272, 0x01020304);
        const CPodMgr pod(write(bytes));
        QCOMPARE(pod.magic, QString("ABCD"));
        QCOMPARE(pod.headerWord1, 1);
        QCOMPARE(pod.headerText1, "first" + QString(75, QChar(0)));
        QCOMPARE(pod.entryCount, 0);
        QCOMPARE(pod.headerWord2, 2);
        QCOMPARE(pod.headerWord3, 3);
        QCOMPARE(pod.headerWord4, -4);
        QCOMPARE(pod.headerText2, QString(80, 's'));
        QCOMPARE(pod.headerText3, QString::fromUtf8("é") + QString(78, 't'));
        QCOMPARE(pod.directoryOffset, 276);
        QCOMPARE(pod.headerWord5, 5);
        QCOMPARE(pod.headerWord6, 0x01020304);
    }

    void directoryGoesIntoTheEntries()
    {
        QByteArray bytes = header(2) + "abcdefgh";
        setNumber(bytes, 264, bytes.size());
        bytes += record(3, 276) + record(5, 279) + QByteArray("DATA\\PLANE.NFO\0DATA\\PLANE.SVH\0", 30);
        CPodMgr pod(write(bytes));
        QCOMPARE(names(pod), QStringList({"DATA\\PLANE.NFO", "DATA\\PLANE.SVH"}));
        QCOMPARE(pod.entryCount, 2);
        QCOMPARE(pod.entries.at(1)->word0, 11);
        QCOMPARE(pod.entries.at(1)->size, 5);
        QCOMPARE(pod.entries.at(1)->offset, 279);
        QCOMPARE(pod.entries.at(1)->word3, 33);
        QCOMPARE(pod.entries.at(1)->word4, 44);
        QVERIFY(pod.isOpen());
        QVERIFY(pod.unusedEntries.isEmpty());
        QCOMPARE(pod.content, QString());
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content, QString("defgh"));
    }

    void anyMagicPasses()
    {
        QByteArray bytes = podArchive({{"A.SVH", "x"}});
        bytes.replace(0, 4, QByteArray("\0\xFF\0\0", 4));
        QVERIFY(CPodMgr(write(bytes)).findBySuffix("SVH"));
    }

    void whatStandsBehindTheNamesIsNotRead()
    {
        const CPodMgr pod(write(podArchive({{"A", "x"}}) + "more" + QByteArray(3, '\0')));
        QCOMPARE(names(pod), QStringList{"A"});
    }

    void manyEntriesWithNamesOfAllLengths()
    {
        Entries entries;
        for (int i = 0; i < 5000; ++i) {
            entries << qMakePair(QByteArray(i % 97, 'n') + QByteArray::number(i), QByteArray::number(i));
        }
        CPodMgr pod(write(entries));
        QCOMPARE(pod.entries.size(), 5000);
        QCOMPARE(pod.entries.at(96)->name, QString(96, 'n') + "96");
        QCOMPARE(pod.entries.at(97)->name, QString("97"));
        QCOMPARE(pod.entries.last()->name, QString(4999 % 97, 'n') + "4999");
        QVERIFY(pod.findBySuffix("n4998"));
        QCOMPARE(pod.content, QString("4998"));
    }

    void nameLongerThanAnyBlock()
    {
        const CPodMgr pod(write({{QByteArray(300000, 'n') + "SVH", "x"}, {"B", "y"}}));
        QCOMPARE(names(pod), QStringList({QString(300000, 'n') + "SVH", "B"}));
    }

    void nameWithoutAnEndIsCut()
    {
        constexpr int longest = 1024 * 1024;
        constexpr int block = 64 * 1024; // the last one of a name comes in whole
        const CPodMgr pod(write(podArchive({{QByteArray(3 * longest, 'n'), "x"}})));
        QCOMPARE(pod.entries.size(), 1);
        const int size = pod.entries.first()->name.size();
        QVERIFY2(size >= longest && size < longest + block, qPrintable(QString::number(size)));
    }

    void emptyNameIsAName()
    {
        const CPodMgr pod(write({{"", "x"}, {"B", "y"}, {"", "z"}}));
        QCOMPARE(names(pod), QStringList({"", "B", ""}));
    }

    void onlyPlainNamesComeThrough()
    {
        const CPodMgr pod(write({{"\xC3\xA9\x7F\x80\xFF.SVH", "x"}}));
        QCOMPARE(names(pod), QStringList{QString::fromUtf8("��\x7F��.SVH")});
    }

    void noEntriesFindNothing()
    {
        CPodMgr pod(write(podArchive({})));
        QVERIFY(pod.entries.isEmpty());
        QVERIFY(!pod.findBySuffix("SVH"));
        QVERIFY(!pod.findBySuffix(""));
    }

    void negativeEntryCountFindsNothing()
    {
        QByteArray bytes = podArchive({{"A.SVH", "x"}});
        setNumber(bytes, 88, -1);
        CPodMgr pod(write(bytes));
        QCOMPARE(pod.entryCount, -1);
        QVERIFY(!pod.findBySuffix("SVH"));
    }

    void suffix_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("found");
        QTest::newRow("with a point") << QByteArray("plane.SVH") << true;
        QTest::newRow("without a point") << QByteArray("planeSVH") << true;
        QTest::newRow("in a folder") << QByteArray("DATA\\A\\plane.SVH") << true;
        QTest::newRow("nothing else") << QByteArray("SVH") << true;
        QTest::newRow("small letters") << QByteArray("plane.svh") << false;
        QTest::newRow("not at the end") << QByteArray("plane.SVH.BAK") << false;
        QTest::newRow("a part of it") << QByteArray("VH") << false;
        QTest::newRow("no name") << QByteArray() << false;
    }

    void suffix()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, found);
        CPodMgr pod(write({{"other.txt", "other"}, {name, "text"}}));
        pod.content = "before";
        QCOMPARE(pod.findBySuffix("SVH"), found);
        QCOMPARE(pod.content, QString(found ? "text" : "before"));
    }

    void lastOfTwoMatchesStays()
    {
        CPodMgr pod(write({{"A.SVH", "first"}, {"B.SVH", "second"}, {"C.NFO", "third"}}));
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content, QString("second"));
    }

    void contentStaysWhenNothingMatches()
    {
        CPodMgr pod(write({{"A.SVH", "first"}}));
        QVERIFY(pod.findBySuffix("SVH"));
        QVERIFY(!pod.findBySuffix("NFO"));
        QCOMPARE(pod.content, QString("first"));
    }

    void exactNameOnly()
    {
        CPodMgr pod(write({{"A.SVH", "first"}, {"B.SVH", "second"}, {"DATA\\A.SVH", "third"}}));
        pod.findExact("A.SVH");
        QCOMPARE(pod.content, QString("first"));
        pod.findExact("SVH");
        QCOMPARE(pod.content, QString("first"));
        pod.findExact("b.svh");
        QCOMPARE(pod.content, QString("first"));
    }

    void entryIsReadAsUtf8WithItsZeroBytes()
    {
        CPodMgr pod(write({{"A.SVH", QByteArray("\xC3\xA9\0z", 4)}}));
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content.size(), 3);
        QCOMPARE(pod.content, QString::fromUtf8("é") + QChar(0) + 'z');
    }

    void anyNumberOfSearches()
    {
        CPodMgr pod(write({{"A.NFO", "one"}, {"A.SVH", "two"}}));
        for (int i = 0; i < 3; ++i) {
            QVERIFY(pod.findBySuffix("NFO"));
            QCOMPARE(pod.content, QString("one"));
            QVERIFY(pod.findBySuffix("SVH"));
            QCOMPARE(pod.content, QString("two"));
        }
    }

    void lineAfterTheTag_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("line");
        QTest::newRow("alone in its line") << "a\n<make>\nBoeing\nb"
                                           << "<make>"
                                           << "Boeing";
        QTest::newRow("with a comment") << "\t<make> -- maker --\n\t Boeing \n"
                                        << "<make>"
                                        << "\t Boeing ";
        QTest::newRow("in the middle of a line") << "x<make>y\nBoeing"
                                                 << "<make>"
                                                 << "Boeing";
        QTest::newRow("first of two") << "<make>\nBoeing\n<make>\nCessna\n"
                                      << "<make>"
                                      << "Boeing";
        QTest::newRow("carriage returns") << "<make>\r\nBoeing\r\nb\r\n"
                                          << "<make>"
                                          << "Boeing";
        QTest::newRow("carriage return in the tag") << "<ma\rke>\nBoeing\n"
                                                    << "<make>"
                                                    << "Boeing";
        QTest::newRow("empty line behind it") << "<make>\n\nBoeing\n"
                                              << "<make>"
                                              << "";
        QTest::newRow("other case") << "<MAKE>\nBoeing\n"
                                    << "<make>"
                                    << "";
        QTest::newRow("no tag") << "a\nb\nc"
                                << "<make>"
                                << "";
        QTest::newRow("tag in the last line") << "a\n<make>"
                                              << "<make>"
                                              << "";
        QTest::newRow("tag in the last line with its line feed") << "a\n<make>\n"
                                                                 << "<make>"
                                                                 << "";
        QTest::newRow("nothing") << ""
                                 << "<make>"
                                 << "";
        QTest::newRow("empty tag") << "a\nb\nc"
                                   << ""
                                   << "b";
        QTest::newRow("tag over two lines") << "a\nb\nc"
                                            << "a\nb"
                                            << "";
    }

    void lineAfterTheTag()
    {
        QFETCH(QString, content);
        QFETCH(QString, tag);
        QFETCH(QString, line);
        CPodMgr pod(write(QByteArray()));
        pod.content = content;
        QCOMPARE(pod.lineAfter(tag), line);
    }

    void carriageReturnsAreGoneForGood()
    {
        CPodMgr pod(write({{"A.SVH", "a\r\nb\r\n"}}));
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content, QString("a\r\nb\r\n"));
        pod.lineAfter("none");
        QCOMPARE(pod.content, QString("a\nb\n"));
    }

    void missingFileFindsNothing()
    {
        CPodMgr pod(folder.filePath("missing.pod"));
        QVERIFY(!pod.isOpen());
        QVERIFY(!pod.findBySuffix("SVH"));
        QVERIFY(!pod.readDirectory("anything"));
        QCOMPARE(pod.lineAfter("<make>"), QString());
    }

    void folderFindsNothing()
    {
        CPodMgr pod(folder.path());
        QVERIFY(!pod.findBySuffix("SVH"));
    }

    void emptyFileHasZerosInItsHeader()
    {
        CPodMgr pod(write(QByteArray()));
        QVERIFY(pod.isOpen());
        QCOMPARE(pod.magic, QString());
        QCOMPARE(pod.entryCount, 0);
        QCOMPARE(pod.directoryOffset, 0);
        QVERIFY(!pod.findBySuffix("SVH"));
    }

    void headerCutShortFindsNothing()
    {
        const QByteArray whole = podArchive({{"A.SVH", "x"}});
        for (int size = 0; size < headerSize; ++size) {
            CPodMgr pod(write(whole.left(size)));
            QVERIFY(!pod.findBySuffix("SVH"));
            QCOMPARE(pod.headerText1.size(), qBound(0, size - 8, 80));
        }
    }

    void archiveCutAnywhereIsReadAsFarAsItGoes()
    {
        const QByteArray whole = podArchive({{"A.NFO", "<make>\nBoeing\n"}, {"A.SVH", "<acid>\nF-GABC\n"}});
        for (int size = headerSize; size < whole.size() - 1; ++size) {
            CPodMgr pod(write(whole.left(size)));
            QVERIFY(!pod.findBySuffix("SVH"));
        }
        // Only the last zero byte is gone: the end of the file ends the name.
        CPodMgr pod(write(whole.left(whole.size() - 1)));
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.lineAfter("<acid>"), QString("F-GABC"));
    }

    void directoryOutsideTheFileFindsNothing_data()
    {
        QTest::addColumn<int>("offset");
        QTest::newRow("at the end") << -1;
        QTest::newRow("behind the end") << 100000;
        QTest::newRow("far behind the end") << largest;
        QTest::newRow("before the start") << -20;
        QTest::newRow("far before the start") << -largest - 1;
    }

    void directoryOutsideTheFileFindsNothing()
    {
        QFETCH(int, offset);
        QByteArray bytes = podArchive({{"A.SVH", "x"}});
        setNumber(bytes, 264, offset == -1 ? bytes.size() : offset);
        CPodMgr pod(write(bytes));
        QVERIFY(!pod.findBySuffix("SVH"));
    }

    void entryCountBeyondTheFileTakesNoMemory()
    {
        QByteArray bytes = podArchive({{"A.SVH", "x"}});
        setNumber(bytes, 88, largest);
        CPodMgr pod(write(bytes));
        QCOMPARE(pod.entryCount, largest);
        QVERIFY(pod.entries.size() < bytes.size());
        QVERIFY(!pod.findBySuffix("SVH"));
    }

    void entryCountBeyondWhatAnArchiveHoldsTakesNoMemory()
    {
        constexpr int tooMany = 4 * 1024 * 1024 + 1;
        const QString path = write(header(tooMany));
        QVERIFY(QFile::resize(path, headerSize + qint64{tooMany} * (recordSize + 1))); // of zeros, without a page
        CPodMgr pod(path);
        QCOMPARE(pod.entryCount, tooMany);
        QVERIFY(pod.entries.isEmpty());
    }

    void entryLargerThanATextIsCut()
    {
        constexpr int longest = 64 * 1024 * 1024;
        const QString path = write(podArchive({{"A.SVH", "text"}}));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QByteArray bytes = file.readAll();
        setNumber(bytes, headerSize + 4 + 4, longest + 1);
        QVERIFY(file.seek(0) && file.write(bytes) == bytes.size() && file.resize(2 * qint64{longest}));
        file.close();
        CPodMgr pod(path);
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content.size(), longest);
    }

    void damagedEntryGivesAnEmptyText_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("offset");
        QTest::newRow("negative size") << -5 << 276;
        QTest::newRow("smallest size") << -largest - 1 << 276;
        QTest::newRow("negative offset") << 5 << -5;
        QTest::newRow("offset behind the end") << 5 << 100000;
        QTest::newRow("largest offset and size") << largest << largest;
        QTest::newRow("no bytes") << 0 << 276;
    }

    void damagedEntryGivesAnEmptyText()
    {
        QFETCH(int, size);
        QFETCH(int, offset);
        QByteArray bytes = header(1);
        setNumber(bytes, 264, bytes.size());
        bytes += record(size, offset) + QByteArray("A.SVH\0", 6);
        CPodMgr pod(write(bytes));
        pod.content = "before";
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content, QString());
    }

    void entryLargerThanTheFileGivesWhatIsThere()
    {
        QByteArray bytes = podArchive({{"A.SVH", "text"}});
        setNumber(bytes, headerSize + 4 + 4, largest);
        CPodMgr pod(write(bytes));
        QVERIFY(pod.findBySuffix("SVH"));
        QCOMPARE(pod.content.size(), bytes.size() - headerSize);
        QVERIFY(pod.content.startsWith("text"));
    }
};

QTEST_APPLESS_MAIN(TestCPodMgr)
#include "tst_cpodmgr.moc"
