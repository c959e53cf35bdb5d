// The block that the simulator publishes its aircraft in: who makes it, who finds it, and what is left of it.
#include "blockpeer.h"
#include "memorylimit.h"

#include "aeozephannavrecord.h"
#include "sharedblock.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Record = const volatile AeoZephanNavRecord;

Record* recordOf(SharedBlock& block)
{
    return static_cast<Record*>(block.map());
}

void makeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

bool isOpen(int file)
{
    return fcntl(file, F_GETFD) != -1;
}

bool isMapped(void* page)
{
    return msync(page, 1, MS_ASYNC) == 0;
}

/// The memory behind the block, whatever its length.
long bytesTaken()
{
    struct stat status = {};
    return stat(qPrintable(NoBlock::path()), &status) == 0 ? long(status.st_blocks) * 512 : -1;
}

/// A page of the test's own at an address that has become free.
void* ownPageAt(void* address)
{
    return mmap(address, 1, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
}

} // namespace

class TestSharedBlock : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        noBlock.reset(new NoBlock);
    }
    void cleanup()
    {
        noBlock.reset();
    }

    void theFirstMakesABlockOfZeros()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        QCOMPARE(QFileInfo(NoBlock::path()).size(), qint64(256));
        QVERIFY(block.map() != nullptr);
        QCOMPARE(QByteArray(static_cast<const char*>(block.map()), 80), QByteArray(80, '\0'));
    }

    void theBlockIsTheUsersOwn()
    {
        const mode_t before = umask(0);
        SharedBlock block;
        const bool attached = block.attach();
        umask(before);
        QVERIFY(attached);
        struct stat status = {};
        QCOMPARE(stat(qPrintable(NoBlock::path()), &status), 0);
        QCOMPARE(int(status.st_mode & 0777), 0600);
    }

    void theRecordLiesWhereTheSimulatorWritesIt()
    {
        QByteArray bytes(256, '\x55');
        bytes.replace(32, 8, QByteArray::fromHex("0000000080500541")); // 174608
        bytes.replace(40, 8, QByteArray::fromHex("000000000090bfc0")); // -8080
        bytes.replace(64, 8, QByteArray::fromHex("0000000000f87040")); // 271.5
        makeFile(NoBlock::path(), bytes);
        SharedBlock block;
        QVERIFY(block.attach());
        Record* record = recordOf(block);
        QVERIFY(record != nullptr);
        QCOMPARE(double(record->latS), 174608.0);
        QCOMPARE(double(record->lonS), -8080.0);
        QCOMPARE(double(record->heading), 271.5);
    }

    void aBlockThatStandsIsFoundAsItIs_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("sizeAfter");
        QTest::newRow("empty") << 0 << 256;
        QTest::newRow("shorter than the view") << 40 << 256;
        QTest::newRow("one byte short") << 255 << 256;
        QTest::newRow("as it should be") << 256 << 256;
        QTest::newRow("longer") << 5000 << 5000;
    }

    void aBlockThatStandsIsFoundAsItIs()
    {
        QFETCH(int, size);
        QFETCH(int, sizeAfter);
        makeFile(NoBlock::path(), QByteArray(size, 'x'));
        SharedBlock block;
        QVERIFY(block.attach());
        QVERIFY(block.map() != nullptr);
        const QByteArray seen(static_cast<const char*>(block.map()), 80);
        QCOMPARE(seen, (QByteArray(size, 'x') + QByteArray(80, '\0')).left(80));
        QCOMPARE(QFileInfo(NoBlock::path()).size(), qint64(sizeAfter));
    }

    void theNameIsCaseSensitive()
    {
        const QString other = NoBlock::path().replace("AeoZephan", "aeozephan");
        makeFile(other, QByteArray(256, 'x'));
        SharedBlock block;
        const bool attached = block.attach();
        QFile::remove(other);
        QVERIFY(attached);
        QCOMPARE(double(recordOf(block)->latS), 0.0);
        QVERIFY(QFileInfo::exists(NoBlock::path()));
    }

    void anotherProcessThatCameFirstIsSeen()
    {
        BlockPeer peer;
        QVERIFY(peer.publish("174600", "8100", "90"));
        SharedBlock block;
        QVERIFY(block.attach());
        Record* record = recordOf(block);
        QCOMPARE(double(record->latS), 174600.0);
        QCOMPARE(double(record->lonS), 8100.0);
        QCOMPARE(double(record->heading), 90.0);
    }

    void anotherProcessThatComesLaterIsSeen()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        Record* record = recordOf(block);
        QCOMPARE(double(record->heading), 0.0);
        BlockPeer peer;
        QVERIFY(peer.publish("174600", "8100", "90"));
        QCOMPARE(double(record->heading), 90.0);
        QVERIFY(peer.publish("174600", "8100", "91"));
        QCOMPARE(double(record->heading), 91.0);
        QCOMPARE(double(record->latS), 174600.0);
        QCOMPARE(double(record->lonS), 8100.0);
    }

    void aDeadProcessLeavesItsValuesAndTheNextGoesOn()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        Record* record = recordOf(block);
        BlockPeer peer;
        QVERIFY(peer.publish("1", "2", "3"));
        peer.kill();
        QCOMPARE(double(record->heading), 3.0);
        QVERIFY(peer.publish("1", "2", "4"));
        QCOMPARE(double(record->heading), 4.0);
    }

    void whatThisSideWritesTheOthersRead()
    {
        SharedBlock one, other;
        QVERIFY(one.attach());
        QVERIFY(other.attach());
        static_cast<volatile AeoZephanNavRecord*>(one.map())->heading = 12.5;
        QVERIFY(one.map() != other.map());
        QCOMPARE(double(recordOf(other)->heading), 12.5);
    }

    void theBlockOutlivesItsUsers()
    {
        {
            SharedBlock block;
            QVERIFY(block.attach());
            static_cast<volatile AeoZephanNavRecord*>(block.map())->heading = 12.5;
        }
        SharedBlock block;
        QVERIFY(block.attach());
        QCOMPARE(double(recordOf(block)->heading), 12.5);
    }

    void attachingAndMappingAgainChangeNothing()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        void* view = block.map();
        const int next = dup(0);
        close(next);
        QVERIFY(block.attach());
        QCOMPARE(block.map(), view);
        const int nextAgain = dup(0);
        close(nextAgain);
        QCOMPARE(nextAgain, next);
    }

    void nothingIsMappedWithoutABlock()
    {
        SharedBlock block;
        QCOMPARE(block.map(), static_cast<void*>(nullptr));
        QVERIFY(!QFileInfo::exists(NoBlock::path()));
        QVERIFY(block.attach());
        block.detach();
        QCOMPARE(block.map(), static_cast<void*>(nullptr));
    }

    void aViewOutlivesTheDetaching()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        Record* record = recordOf(block);
        block.detach();
        BlockPeer peer;
        QVERIFY(peer.publish("1", "2", "3"));
        QCOMPARE(double(record->heading), 3.0);
    }

    void aSecondReleaseLeavesTheMappingsOfOthersAlone()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        void* view = block.map();
        QVERIFY(isMapped(view));
        block.release();
        QVERIFY(!isMapped(view));
        QCOMPARE(ownPageAt(view), view);
        block.release();
        QVERIFY(isMapped(view));
        munmap(view, 1);
    }

    void aSecondDetachLeavesTheFilesOfOthersAlone()
    {
        const int file = dup(0);
        close(file);
        SharedBlock block;
        QVERIFY(block.attach());
        QVERIFY(isOpen(file));
        block.detach();
        QVERIFY(!isOpen(file));
        QCOMPARE(dup(0), file);
        block.detach();
        QVERIFY(isOpen(file));
        close(file);
    }

    void theEndReleasesAndDetaches()
    {
        const int file = dup(0);
        close(file);
        void* view = nullptr;
        {
            SharedBlock block;
            QVERIFY(block.attach());
            view = block.map();
            QVERIFY(isOpen(file));
        }
        QVERIFY(!isOpen(file));
        QVERIFY(!isMapped(view));
    }

    void theStepsMayBeTakenAnew()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        QVERIFY(block.map() != nullptr);
        block.release();
        block.detach();
        QVERIFY(block.attach());
        QVERIFY(block.map() != nullptr);
    }

    void theMemoryIsTaken_data()
    {
        QTest::addColumn<bool>("stands");
        QTest::newRow("for a block that is made") << false;
        QTest::newRow("for a block that stands there without any") << true;
    }

    void theMemoryIsTaken()
    {
        // A block that only has its length takes memory at the first access, and where there is none left that access
        // ends the process.
        QFETCH(bool, stands);
        if (stands) {
            makeFile(NoBlock::path(), QByteArray());
            QVERIFY(QFile::resize(NoBlock::path(), 256));
            QCOMPARE(bytesTaken(), 0L);
        }
        SharedBlock block;
        QVERIFY(block.attach());
        QVERIFY2(bytesTaken() >= 256, QByteArray::number(qlonglong(bytesTaken())).constData());
    }

    void aBlockThatIsCutShortHoldsNoView_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("holds");
        QTest::newRow("to nothing") << 0 << false;
        QTest::newRow("to a byte less than the view") << 79 << false;
        QTest::newRow("to the view") << 80 << true;
        QTest::newRow("not at all") << 256 << true;
        QTest::newRow("made longer") << 5000 << true;
    }

    void aBlockThatIsCutShortHoldsNoView()
    {
        QFETCH(int, size);
        QFETCH(bool, holds);
        SharedBlock block;
        QVERIFY(block.attach());
        QVERIFY(block.map() != nullptr);
        QVERIFY(block.holdsView());
        QVERIFY(QFile::resize(NoBlock::path(), size));
        QCOMPARE(block.holdsView(), holds);
    }

    void withoutABlockThereIsNoViewToHold()
    {
        SharedBlock block;
        QVERIFY(!block.holdsView());
        QVERIFY(block.attach());
        block.detach();
        QVERIFY(!block.holdsView());
    }

    void attachingMakesACutBlockWholeAgain()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        Record* record = recordOf(block);
        QVERIFY(QFile::resize(NoBlock::path(), 0));
        QVERIFY(block.attach());
        QVERIFY(block.holdsView());
        QCOMPARE(QFileInfo(NoBlock::path()).size(), qint64(256));
        // The view is the old one.
        QCOMPARE(recordOf(block), record);
        QCOMPARE(double(record->heading), 0.0);
        BlockPeer peer;
        QVERIFY(peer.publish("1", "2", "3"));
        QCOMPARE(double(record->heading), 3.0);
    }

    void aFolderUnderTheNameIsRefused()
    {
        QVERIFY(QDir().mkdir(NoBlock::path()));
        SharedBlock block;
        QVERIFY(!block.attach());
        QCOMPARE(block.map(), static_cast<void*>(nullptr));
        NoBlock::remove();
        QVERIFY(block.attach());
    }

    void whatCannotHoldABlockIsRefusedAndLetGo()
    {
        QCOMPARE(mkfifo(qPrintable(NoBlock::path()), 0600), 0);
        const int file = dup(0);
        close(file);
        SharedBlock block;
        QVERIFY(!block.attach());
        QVERIFY(!isOpen(file));
        QCOMPARE(block.map(), static_cast<void*>(nullptr));
    }

    void aMappingThatTheSystemRefusesGivesNoView()
    {
        SharedBlock block;
        QVERIFY(block.attach());
        void* view = &block;
        {
            MemoryLimit limit;
            view = block.map();
        }
        QCOMPARE(view, static_cast<void*>(nullptr));
        QVERIFY(block.map() != nullptr);
    }

private:
    QScopedPointer<NoBlock> noBlock;
};

QTEST_GUILESS_MAIN(TestSharedBlock)
#include "tst_sharedblock.moc"
