// The link to the simulator: its steps, what it tells the log, and how it ends.
#include "blockpeer.h"
#include "memorylimit.h"
#include "messagelog.h"

#include "External.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int never = 24 * 3600 * 1000; // milliseconds

/// The descriptor that the next file to be opened gets: the lowest that is free.
int nextFile()
{
    const int file = dup(0);
    close(file);
    return file;
}

bool isOpen(int file)
{
    return fcntl(file, F_GETFD) != -1;
}

} // namespace

class TestNavPlug : public QObject
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

    void withNoSimulatorItConnectsAndReadsZeros()
    {
        MessageLog log;
        CNavPlug plug(never);
        QCOMPARE(log.messages(), (QStringList{"", "NAVIGATION: Connect"}));
        QVERIFY(plug.connected);
        QVERIFY(plug.view != nullptr);
        QCOMPARE(static_cast<const volatile void*>(plug.record), static_cast<const volatile void*>(plug.view));
        QCOMPARE(double(plug.record->latS), 0.0);
        QCOMPARE(double(plug.record->lonS), 0.0);
        QCOMPARE(double(plug.record->heading), 0.0);
        QCOMPARE(QFileInfo(NoBlock::path()).size(), qint64(256));
    }

    void theTimerTakesTheIntervalAsMilliseconds_data()
    {
        QTest::addColumn<int>("interval");
        QTest::newRow("the settings' default") << 2;
        QTest::newRow("none") << 0;
        QTest::newRow("a second") << 1000;
    }

    void theTimerTakesTheIntervalAsMilliseconds()
    {
        QFETCH(int, interval);
        CNavPlug plug(interval);
        QVERIFY(plug.timer->isActive());
        QVERIFY(!plug.timer->isSingleShot());
        QCOMPARE(plug.timer->interval(), interval);
        QCOMPARE(plug.timer->parent(), static_cast<QObject*>(nullptr));
    }

    void theTimerTicksOnAndOnUntilTheClose()
    {
        CNavPlug plug(1);
        QSignalSpy ticks(plug.timer, &QTimer::timeout);
        QTRY_VERIFY_WITH_TIMEOUT(ticks.count() >= 3, 20000);
        plug.Close();
        ticks.clear();
        QTest::qWait(50);
        QCOMPARE(ticks.count(), 0);
    }

    void aNegativeIntervalConnectsWithoutTicks()
    {
        QTest::ignoreMessage(QtWarningMsg, "QObject::startTimer: Timers cannot have negative intervals");
        CNavPlug plug(-1);
        QVERIFY(plug.connected);
        QSignalSpy ticks(plug.timer, &QTimer::timeout);
        QTest::qWait(20);
        QCOMPARE(ticks.count(), 0);
        plug.Close();
        QVERIFY(!plug.connected);
    }

    void aSimulatorStartedLaterFindsTheSameBlock()
    {
        CNavPlug plug(never);
        BlockPeer simulator;
        QVERIFY(simulator.publish("174600", "8100", "90"));
        QCOMPARE(double(plug.record->latS), 174600.0);
        QCOMPARE(double(plug.record->lonS), 8100.0);
        QCOMPARE(double(plug.record->heading), 90.0);
    }

    void aSimulatorThatEndsGoesUnnoticedAndTheNextIsFollowed()
    {
        BlockPeer simulator;
        QVERIFY(simulator.publish("1", "2", "3"));
        CNavPlug plug(never);
        simulator.kill();
        QVERIFY(plug.connected);
        QCOMPARE(double(plug.record->heading), 3.0);
        QVERIFY(simulator.publish("1", "2", "4"));
        QCOMPARE(double(plug.record->heading), 4.0);
    }

    void theSimulatorsBytesAreLeftAlone()
    {
        QFile file(NoBlock::path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray bytes(256, '\x55');
        file.write(bytes);
        file.close();
        CNavPlug(never).Close();
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
    }

    void aBlockThatIsRefusedGivesNoTimerAndNoView()
    {
        QVERIFY(QDir().mkdir(NoBlock::path()));
        MessageLog log;
        CNavPlug plug(never);
        QCOMPARE(log.messages(), QStringList{"Error CreateFileMapping"});
        QVERIFY(!plug.connected);
        QCOMPARE(plug.view, static_cast<void*>(nullptr));
        QVERIFY(plug.record == nullptr);
        QCOMPARE(plug.timer, static_cast<QTimer*>(nullptr));
    }

    void aViewThatIsRefusedLeavesTheTimerRunning()
    {
        MessageLog log;
        QScopedPointer<CNavPlug> plug;
        {
            MemoryLimit limit;
            plug.reset(new CNavPlug(never));
        }
        QCOMPARE(log.messages(), (QStringList{"", "Error MapViewOfFile"}));
        QVERIFY(!plug->connected);
        QCOMPARE(plug->view, static_cast<void*>(nullptr));
        QVERIFY(plug->record == nullptr);
        QVERIFY(plug->timer->isActive());
        plug->Close();
        QVERIFY(!plug->timer->isActive());
    }

    void aFailedLinkIsNotMendedByTheCloseNorByTime()
    {
        QVERIFY(QDir().mkdir(NoBlock::path()));
        CNavPlug plug(never);
        NoBlock::remove();
        QTest::qWait(50);
        QVERIFY(!plug.connected);
        QCOMPARE(plug.view, static_cast<void*>(nullptr));
        plug.Close();
        QTest::qWait(50);
        QVERIFY(!plug.connected);
        QCOMPARE(plug.view, static_cast<void*>(nullptr));
        QVERIFY(!QFileInfo::exists(NoBlock::path()));
    }

    void closeStopsTheTimerAndKeepsIt()
    {
        CNavPlug plug(never);
        const QPointer<QTimer> timer = plug.timer;
        void* view = plug.view;
        MessageLog log;
        plug.Close();
        QCOMPARE(log.messages(), QStringList{"NAVIGATION: Disconnect"});
        QVERIFY(!plug.connected);
        QVERIFY(timer);
        QCOMPARE(plug.timer, timer.data());
        QVERIFY(!timer->isActive());
        // Not cleared either, though nothing is there any more.
        QCOMPARE(plug.view, view);
        QVERIFY(QFileInfo::exists(NoBlock::path()));
    }

    void closeMayBeCalledAgainAndAgain_data()
    {
        QTest::addColumn<bool>("refused");
        QTest::newRow("after a connection") << false;
        QTest::newRow("after a failed construction") << true;
    }

    void closeMayBeCalledAgainAndAgain()
    {
        QFETCH(bool, refused);
        if (refused)
            QVERIFY(QDir().mkdir(NoBlock::path()));
        CNavPlug plug(never);
        MessageLog log;
        plug.Close();
        plug.Close();
        plug.Close();
        QCOMPARE(log.messages(),
                 (QStringList{"NAVIGATION: Disconnect", "NAVIGATION: Disconnect", "NAVIGATION: Disconnect"}));
        QVERIFY(!plug.connected);
    }

    void aLateCloseLeavesTheNextLinkAlone()
    {
        const int file = nextFile();
        CNavPlug old(never);
        QVERIFY(isOpen(file));
        old.Close();
        QVERIFY(!isOpen(file));
        // It comes to the address and the file descriptor that the old one had.
        CNavPlug next(never);
        QCOMPARE(next.view, old.view);
        QVERIFY(isOpen(file));
        old.Close();
        QVERIFY(isOpen(file));
        QVERIFY(next.mapping.holdsView());
        BlockPeer simulator;
        QVERIFY(simulator.publish("1", "2", "3"));
        QVERIFY(next.connected);
        QVERIFY(next.timer->isActive());
        QCOMPARE(double(next.record->heading), 3.0);
    }

    void theEndCloses()
    {
        QPointer<QTimer> timer;
        MessageLog log;
        {
            CNavPlug plug(never);
            timer = plug.timer;
            log.clear();
        }
        QCOMPARE(log.messages(), QStringList{"NAVIGATION: Disconnect"});
        QVERIFY(timer);
        QVERIFY(!timer->isActive());
    }

private:
    QScopedPointer<NoBlock> noBlock;
};

QTEST_GUILESS_MAIN(TestNavPlug)
#include "tst_navplug.moc"
