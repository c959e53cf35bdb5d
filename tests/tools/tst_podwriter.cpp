#include "cpodmgr.h"
#include "podwriter.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

class TestPodWriter : public QObject
{
    Q_OBJECT

private slots:
    void theHeaderHasItsFieldsInTheirPlaces();
    void theReaderFindsWhatWasWritten();
    void anArchiveCanBeEmpty();
    void anUnwritablePathIsRefused();

private:
    QTemporaryDir folder;
};

namespace {

qint32 numberAt(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<qint32>(bytes.constData() + offset);
}

} // namespace

void TestPodWriter::theHeaderHasItsFieldsInTheirPlaces()
{
    const QByteArray bytes = podBytes({{"A.NFO", "first"}, {"B.RAW", QByteArray("\0\1\2", 3)}});
    QCOMPARE(numberAt(bytes, 88), 2);        // entries
    QCOMPARE(numberAt(bytes, 264), 276 + 8); // directory, behind the header and both entries
    QCOMPARE(bytes.mid(276, 5), QByteArray("first"));
    QCOMPARE(numberAt(bytes, 284 + 4), 5);        // size of the first entry
    QCOMPARE(numberAt(bytes, 284 + 8), 276);      // its offset
    QCOMPARE(numberAt(bytes, 284 + 20 + 4), 3);   // size of the second
    QCOMPARE(numberAt(bytes, 284 + 20 + 8), 281); // its offset
    QCOMPARE(bytes.mid(284 + 40), QByteArray("A.NFO\0B.RAW\0", 12));
}

void TestPodWriter::theReaderFindsWhatWasWritten()
{
    const QString path = folder.filePath("two.pod");
    QVERIFY(writePod(path, {{"WORLD\\ONE.NFO", "<make>\nOne\n"}, {"ART\\ONE.RAW", QByteArray(3000, '\0')}}));
    CPodMgr pod(path);
    QCOMPARE(pod.entryCount, 2);
    QCOMPARE(pod.entries.size(), 2);
    QCOMPARE(pod.entries.at(0)->name, QString("WORLD\\ONE.NFO"));
    QCOMPARE(pod.entries.at(1)->name, QString("ART\\ONE.RAW"));
    QCOMPARE(pod.entries.at(1)->size, 3000);
    QVERIFY(pod.findBySuffix("NFO"));
    QCOMPARE(pod.lineAfter("<make>"), QString("One"));
    QVERIFY(!pod.findBySuffix("SVH"));
}

void TestPodWriter::anArchiveCanBeEmpty()
{
    const QString path = folder.filePath("none.pod");
    QVERIFY(writePod(path, {}));
    CPodMgr pod(path);
    QCOMPARE(pod.entryCount, 0);
    QVERIFY(!pod.findBySuffix("NFO"));
}

void TestPodWriter::anUnwritablePathIsRefused()
{
    QVERIFY(!writePod(folder.filePath("no such folder/x.pod"), {}));
}

QTEST_GUILESS_MAIN(TestPodWriter)
#include "tst_podwriter.moc"
