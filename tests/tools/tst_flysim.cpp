// The program that plays the simulator: as a process of its own, with what it does to the shared block.
#include "blockpeer.h"

#include "aeozephannavrecord.h"
#include "sharedblock.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <memory>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

class TestFlySim : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void cleanupTestCase();

    void theCommandLineOfTheProgram_data();
    void theCommandLineOfTheProgram();

    void positionAndHeadingArePublished();
    void theRestOfTheRecordIsLeftAlone();
    void theAircraftFliesAlongItsCourse();
    void theLongitudeGoesOnTheOtherSideBehind180Degrees();
    void aPlanIsFlownToItsLastPoint();
    void aPlanIsFlownAgainWhenAsked();
    void pointsWithoutAPositionAreToldAndLeftOut();
    void theStatusIsPrinted();
    void theStatusTellsTheLastPoint();
    void speedAndFactorAreObeyed();
    void theRateIsObeyed();
    void aBlockThatIsCutShortIsMadeWholeAgain();
    void aMissingBlockIsMade();
    void aRefusedBlockIsTold();
    void itEndsCleanlyOnCtrlC();
    void itEndsCleanlyOnATerminationRequest();
    void aKilledOneLeavesTheBlockReadable();
    void aNewOneGoesOnInTheSameBlock();

private:
    void takeBlock();
    void start(const QStringList& arguments);
    QString planFile(const QString& name, const QByteArray& text) const;

    QTemporaryDir folder;
    SharedBlock block;
    AeoZephanNavRecord* record = nullptr;
    std::unique_ptr<QProcess> flysim;
};

namespace {

constexpr int patience = 20000; // milliseconds, on a machine under load
constexpr double unseen = 1e9;  // no position and no heading

QString program()
{
    return QCoreApplication::applicationDirPath() + "/flysim";
}

QByteArray point(const char* iden, const char* position)
{
    return QByteArray("\t<wpnt> --------- Waypoint ---------------\n\tuswp\n\t\t<iden> ---- \n\t\t") + iden +
           "\n\t\t<llps> ---- \n\t\t" + position + "\n";
}

/// A volatile look: another process writes there.
double now(const double& field)
{
    return *static_cast<const volatile double*>(&field);
}

bool isNear(double value, double wanted)
{
    return std::abs(value - wanted) < 0.001;
}

} // namespace

#define TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, patience)

void TestFlySim::takeBlock()
{
    QVERIFY(block.attach());
    record = static_cast<AeoZephanNavRecord*>(block.map());
    QVERIFY(record != nullptr);
}

void TestFlySim::init()
{
    // A test that failed may have left no block, or one that is cut short.
    takeBlock();
    if (QTest::currentTestFailed()) {
        return;
    }
    record->latS = record->lonS = record->heading = unseen;
}

void TestFlySim::cleanup()
{
    if (flysim) {
        flysim->kill();
        flysim->waitForFinished(patience);
        flysim.reset();
    }
}

void TestFlySim::cleanupTestCase()
{
    block.release();
    block.detach();
    NoBlock::remove();
}

void TestFlySim::start(const QStringList& arguments)
{
    flysim = std::make_unique<QProcess>();
    flysim->start(program(), arguments);
    QVERIFY(flysim->waitForStarted(patience));
    // The heading is the last that it writes.
    TRY_VERIFY(now(record->heading) != unseen);
}

QString TestFlySim::planFile(const QString& name, const QByteArray& text) const
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

void TestFlySim::theCommandLineOfTheProgram_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    const QString onePoint = planFile("one.FPL", point("LFPO", "0,0,0"));
    const QString text = planFile("text.FPL", "A letter.\n");
    const QString missing = folder.filePath("missing.FPL");
    QTest::newRow("help") << QStringList{"--help"} << 0 << "Usage: flysim --plan FILE"
                          << "";
    QTest::newRow("unknown option") << QStringList{"--fast"} << 2 << ""
                                    << "flysim: unknown option \"--fast\"; --help tells more\n";
    QTest::newRow("nothing") << QStringList() << 2 << ""
                             << "flysim: --plan or --start is wanted; --help tells more\n";
    QTest::newRow("missing file") << QStringList{"--plan", missing} << 1 << ""
                                  << "flysim: " + missing + ": no such file\n";
    QTest::newRow("a folder") << QStringList{"--plan", folder.path()} << 1 << ""
                              << "flysim: " + folder.path() + ": cannot be read\n";
    QTest::newRow("no plan") << QStringList{"--plan", text} << 1 << ""
                             << "flysim: " + text + ": is no flight plan\n";
    QTest::newRow("one point") << QStringList{"--plan", onePoint} << 1 << ""
                               << "flysim: " + onePoint + ": has fewer than two points to fly between\n";
}

void TestFlySim::theCommandLineOfTheProgram()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, exitCode);
    QFETCH(const QString, output);
    QFETCH(const QString, message);
    QProcess process;
    process.start(program(), arguments);
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), exitCode);
    const QString printed = process.readAllStandardOutput();
    QVERIFY2(printed.startsWith(output) && printed.isEmpty() == output.isEmpty(), qPrintable(printed));
    QCOMPARE(QString(process.readAllStandardError()), message);
    QCOMPARE(now(record->latS), unseen);
}

void TestFlySim::positionAndHeadingArePublished()
{
    start({"--start", "48.7295,2.359", "--heading", "62", "--speed", "0"});
    QVERIFY(isNear(now(record->latS), 175426.2));
    QVERIFY(isNear(now(record->lonS), 8492.4));
    QVERIFY(isNear(now(record->heading), 62.0));
}

void TestFlySim::theRestOfTheRecordIsLeftAlone()
{
    QByteArray marks;
    for (std::size_t i = 0; i < sizeof(AeoZephanNavRecord); ++i) {
        marks += static_cast<char>('A' + i % 7);
    }
    std::memcpy(record, marks.constData(), sizeof(AeoZephanNavRecord));
    record->heading = unseen;
    start({"--start", "-33.5,-70.25", "--heading", "350", "--speed", "0"});
    QVERIFY(isNear(now(record->latS), -120600.0));
    QVERIFY(isNear(now(record->lonS), -252900.0));
    const QByteArray left(reinterpret_cast<const char*>(record), sizeof(AeoZephanNavRecord));
    QCOMPARE(left.left(32), marks.left(32));
    QCOMPARE(left.mid(48, 16), marks.mid(48, 16));
    QCOMPARE(left.mid(72), marks.mid(72));
}

void TestFlySim::theAircraftFliesAlongItsCourse()
{
    start({"--start", "0,10", "--heading", "90", "--speed", "600", "--factor", "60", "--rate", "100"});
    const double first = now(record->lonS);
    QVERIFY(first >= 35999.999);
    TRY_VERIFY(now(record->lonS) > first + 60.0);
    const double second = now(record->lonS);
    TRY_VERIFY(now(record->lonS) > second + 60.0);
    QVERIFY(isNear(now(record->latS), 0.0));
    QVERIFY(isNear(now(record->heading), 90.0));
}

void TestFlySim::theLongitudeGoesOnTheOtherSideBehind180Degrees()
{
    start({"--start", "0,179.99", "--heading", "90", "--speed", "600", "--factor", "60"});
    TRY_VERIFY(now(record->lonS) < 0.0);
    QVERIFY(now(record->lonS) >= -648000.0);
    QVERIFY(isNear(now(record->heading), 90.0));
}

void TestFlySim::aPlanIsFlownToItsLastPoint()
{
    const QString plan = planFile(
        "LFPO_LFBO.FPL", "<bgno> == Generated with zephan Trajector ==\r\n" + point("ONE", "3600.000,7200.000,0\r") +
                             point("TWO", "7200.000,7200.000,0") + point("THREE", "7200.000,1292400.000,0"));
    start({"--plan", plan, "--speed", "10000", "--factor", "100"});
    TRY_VERIFY(isNear(now(record->lonS), -3600.0));
    QVERIFY(isNear(now(record->latS), 7200.0));
    // A great circle to the west along 2 degrees north ends to the south of west.
    // It is written after the longitude.
    TRY_VERIFY(now(record->heading) > 269.9 && now(record->heading) < 270.0);
    record->lonS = unseen;
    TRY_VERIFY(now(record->lonS) != unseen);
    QVERIFY(isNear(now(record->lonS), -3600.0));
    QCOMPARE(flysim->state(), QProcess::Running);
}

void TestFlySim::aPlanIsFlownAgainWhenAsked()
{
    const QString plan = planFile("loop.FPL", point("ONE", "0,0,0") + point("TWO", "3600,0,0"));
    start({"--plan", plan, "--speed", "10000", "--factor", "20", "--loop"});
    for (int round = 0; round < 2; ++round) {
        TRY_VERIFY(now(record->latS) > 1800.0);
        TRY_VERIFY(now(record->latS) < 1800.0);
    }
}

void TestFlySim::pointsWithoutAPositionAreToldAndLeftOut()
{
    const QString plan =
        planFile("hole.FPL", point("ONE", "3600,0,0") + point("TWO", "nowhere") + point("THREE", "7200,0,0"));
    start({"--plan", plan, "--speed", "0"});
    QVERIFY(isNear(now(record->latS), 3600.0));
    QVERIFY(isNear(now(record->heading), 0.0));
    // It is told before the flight begins.
    flysim->kill();
    QVERIFY(flysim->waitForFinished(patience));
    QCOMPARE(QString(flysim->readAllStandardError()).remove('\r'),
             QString("flysim: 1 of the plan's 3 points have no position that can be read and are left out\n"));
}

void TestFlySim::theStatusIsPrinted()
{
    const QString plan = planFile("short.FPL", point("ONE", "3600,-7200,0") + point("TWO", "7200,-7200,0"));
    start({"--plan", plan, "--speed", "0"});
    TRY_VERIFY(flysim->canReadLine());
    QCOMPARE(QString(flysim->readLine()).trimmed(), QString("1.00000   -2.00000  heading   0.0  0.0 NM of 60.0 NM"));
}

void TestFlySim::theStatusTellsTheLastPoint()
{
    // There from the beginning.
    const QString plan = planFile("here.FPL", point("ONE", "3600,-7200,0") + point("TWO", "3600,-7200,0"));
    start({"--plan", plan});
    TRY_VERIFY(flysim->canReadLine());
    QCOMPARE(QString(flysim->readLine()).trimmed(),
             QString("1.00000   -2.00000  heading   0.0  0.0 NM of 0.0 NM, at the last point"));
}

void TestFlySim::speedAndFactorAreObeyed()
{
    QElapsedTimer clock;
    clock.start();
    // 100 NM a second to the north.
    start({"--start", "0,0", "--heading", "0", "--speed", "3600", "--factor", "100", "--rate", "100"});
    const double miles = 200.0;
    TRY_VERIFY(now(record->latS) >= miles * 60.0);
    // In time, and however slow the machine is: not before it can be there.
    QVERIFY2(clock.elapsed() >= 2000, QByteArray::number(clock.elapsed()).constData());
}

void TestFlySim::theRateIsObeyed()
{
    QElapsedTimer clock;
    clock.start();
    start({"--start", "1,2", "--speed", "0", "--rate", "0.1"});
    record->heading = unseen;
    QTest::qWait(500);
    const bool published = now(record->heading) != unseen;
    // Ten seconds from one record to the next: a machine that was away so long tells nothing.
    QVERIFY(!published || clock.elapsed() >= 9000);
    TRY_VERIFY(now(record->heading) != unseen);
}

void TestFlySim::aBlockThatIsCutShortIsMadeWholeAgain()
{
#ifdef Q_OS_UNIX
    start({"--start", "1,2", "--heading", "45", "--speed", "0"});
    const QString path = NoBlock::path();
    QVERIFY(QFile::resize(path, 0));
    // Not a look at the record before its bytes are there again: it would be the test's end.
    TRY_VERIFY(QFileInfo(path).size() == 256);
    TRY_VERIFY(isNear(now(record->heading), 45.0));
    QVERIFY(isNear(now(record->latS), 3600.0));
    QCOMPARE(flysim->state(), QProcess::Running);
#else
    QSKIP("on Windows a block never shrinks");
#endif
}

void TestFlySim::aMissingBlockIsMade()
{
#ifdef Q_OS_UNIX
    block.release();
    block.detach();
    record = nullptr;
    NoBlock::remove();
    QVERIFY(!QFileInfo::exists(NoBlock::path()));
    flysim = std::make_unique<QProcess>();
    flysim->start(program(), {"--start", "1,2", "--speed", "0"});
    QVERIFY(flysim->waitForStarted(patience));
    // The test's own attaching would make the block as well.
    TRY_VERIFY(QFileInfo(NoBlock::path()).size() == 256);
    takeBlock();
    QVERIFY(record != nullptr);
    TRY_VERIFY(isNear(now(record->latS), 3600.0));
#else
    QSKIP("on Windows the test's own block is there as long as the test is");
#endif
}

void TestFlySim::aRefusedBlockIsTold()
{
#ifdef Q_OS_UNIX
    block.release();
    block.detach();
    record = nullptr;
    NoBlock::remove();
    // Refused to root as well, whom another user's block would not be.
    QVERIFY(QDir().mkdir(NoBlock::path()));
    flysim = std::make_unique<QProcess>();
    flysim->start(program(), {"--start", "1,2"});
    const bool ended = flysim->waitForFinished(patience);
    NoBlock::remove();
    QVERIFY(ended);
    QCOMPARE(flysim->exitStatus(), QProcess::NormalExit);
    QCOMPARE(flysim->exitCode(), 1);
    QCOMPARE(flysim->readAllStandardError(),
             QByteArray("flysim: the system refuses the shared block; another user may have left it\n"));
#else
    QSKIP("A block of Windows is its user's alone.");
#endif
}

void TestFlySim::itEndsCleanlyOnCtrlC()
{
#ifdef Q_OS_UNIX
    // A slow one, which sleeps for ten seconds when the signal comes.
    start({"--start", "1,2", "--speed", "0", "--rate", "0.1"});
    QCOMPARE(kill(static_cast<pid_t>(flysim->processId()), SIGINT), 0);
    QVERIFY(flysim->waitForFinished(patience));
    QCOMPARE(flysim->exitStatus(), QProcess::NormalExit);
    QCOMPARE(flysim->exitCode(), 0);
    QCOMPARE(flysim->readAllStandardOutput().split('\n').value(1),
             QByteArray("ended; the block keeps the last position"));
    QVERIFY(isNear(now(record->latS), 3600.0));
#else
    QSKIP("no console to press the keys in");
#endif
}

void TestFlySim::itEndsCleanlyOnATerminationRequest()
{
#ifdef Q_OS_UNIX
    start({"--start", "1,2", "--speed", "0"});
    flysim->terminate();
    QVERIFY(flysim->waitForFinished(patience));
    QCOMPARE(flysim->exitStatus(), QProcess::NormalExit);
    QCOMPARE(flysim->exitCode(), 0);
#else
    QSKIP("a console program has no window to send the request to");
#endif
}

void TestFlySim::aKilledOneLeavesTheBlockReadable()
{
    start({"--start", "1,2", "--heading", "45", "--speed", "0"});
    flysim->kill();
    QVERIFY(flysim->waitForFinished(patience));
    SharedBlock another;
    QVERIFY(another.attach());
    QVERIFY(another.map() != nullptr);
    AeoZephanNavRecord seen{};
    std::memcpy(&seen, another.map(), sizeof seen);
    QVERIFY(isNear(seen.latS, 3600.0));
    QVERIFY(isNear(seen.lonS, 7200.0));
    QVERIFY(isNear(seen.heading, 45.0));
}

void TestFlySim::aNewOneGoesOnInTheSameBlock()
{
    start({"--start", "1,2", "--speed", "0"});
    flysim->kill();
    QVERIFY(flysim->waitForFinished(patience));
    record->heading = unseen;
    start({"--start", "3,4", "--heading", "180", "--speed", "0"});
    QVERIFY(isNear(now(record->latS), 10800.0));
    QVERIFY(isNear(now(record->lonS), 14400.0));
    QVERIFY(isNear(now(record->heading), 180.0));
}

QTEST_GUILESS_MAIN(TestFlySim)
#include "tst_flysim.moc"
