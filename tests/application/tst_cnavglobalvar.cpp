// The settings: what a start reads and what an end writes.
#include "cnavglobalvar.h"

#include "messagelog.h"
#include "sandbox.h"

#include <QSettings>
#include <QTextCodec>
#include <QtTest>

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

CNavGlobalVar& settings()
{
    return *CNavGlobalVar::instance();
}

void leave()
{
    CNavGlobalVar::deleteInstance();
}

/// Rights bind no administrator, as whom the tests may run: meanwhile it is somebody else, and a file his.
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const QByteArray& file)
    {
        constexpr uid_t nobody = 65534;
        is = before != 0 || (chown(file.constData(), nobody, gid_t(-1)) == 0 && seteuid(nobody) == 0);
    }
    ~OrdinaryUser()
    {
        if (seteuid(before) != 0)
            qFatal("not the user from before");
        prctl(PR_SET_DUMPABLE, 1); // who was another is hidden from LeakSanitizer
    }

    bool is = false;

private:
    const uid_t before = geteuid();
};

struct Switch
{
    const char* key;
    bool CNavGlobalVar::*field;
};

const Switch switches[] = {
    {"view/showAirport", &CNavGlobalVar::showAirport},
    {"view/showVor", &CNavGlobalVar::showVor},
    {"view/showNdbRte", &CNavGlobalVar::showNdbRte},
    {"view/showNdbTerm", &CNavGlobalVar::showNdbTerm},
    {"view/showWaypointRte", &CNavGlobalVar::showWaypointRte},
    {"view/showWaypointTerm", &CNavGlobalVar::showWaypointTerm},
    {"view/showWaypointVfr", &CNavGlobalVar::showWaypointVfr},
    {"view/showATSH", &CNavGlobalVar::showATSH},
    {"view/showATSL", &CNavGlobalVar::showATSL},
    {"view/showATSB", &CNavGlobalVar::showATSB},
    {"view/showBoundary", &CNavGlobalVar::showBoundary},
    {"view/showDock", &CNavGlobalVar::showDock},
};

} // namespace

class TestCNavGlobalVar : public QObject
{
    Q_OBJECT

private slots:
    void aFirstRunHasTheDefaults()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeSettings();
        for (const Switch& entry : switches)
            QVERIFY2(settings().*entry.field, entry.key);
        QCOMPARE(settings().zoom, 6.0);
        QCOMPARE(settings().mapCenter, QPointF(2.0, 49.0));
        QCOMPARE(settings().route, QString("FR"));
        QCOMPARE(settings().traceInterval, 2);
        QCOMPARE(settings().dirWork.path(), QString());
        QVERIFY(!settings().dirWork.exists());
    }

    void airwayTypeNames()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QCOMPARE(settings().atsTypeNames,
                 (QStringList{"ATLANTIC", "BAHAMA", "CORRIDOR", "ADVISORY", "DIRECT", "MILITARY", "NORTH AMERICAN",
                              "OCEANIC", "RNAV", "SUBSTITUTE", "TACAN", "AIRWAY"}));
    }

    void eachKeyIsReadIntoItsField_data()
    {
        QTest::addColumn<int>("number");
        for (int i = 0; i < int(std::size(switches)); ++i)
            QTest::newRow(switches[i].key) << i;
    }

    void eachKeyIsReadIntoItsField()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QFETCH(int, number);
        sandbox.setSetting(switches[number].key, false);
        for (int i = 0; i < int(std::size(switches)); ++i)
            QCOMPARE(settings().*switches[i].field, i != number);
    }

    void theOtherKeysAreRead()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.setSetting("view/zoom", 9.5);
        sandbox.setSetting("view/mapCenter", QPointF(-4.25, 48.5));
        sandbox.setSetting("view/route", "IT");
        sandbox.setSetting("trace/intervale", 500);
        QCOMPARE(settings().zoom, 9.5);
        QCOMPARE(settings().mapCenter, QPointF(-4.25, 48.5));
        QCOMPARE(settings().route, QString("IT"));
        QCOMPARE(settings().traceInterval, 500);
        QCOMPARE(settings().dirWork.path(), sandbox.path("Work"));
    }

    void valuesAreTakenAsTheyStand()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.setSetting("view/zoom", -3);
        sandbox.setSetting("trace/intervale", -1);
        QCOMPARE(settings().zoom, -3.0);
        QCOMPARE(settings().traceInterval, -1);
    }

    void aHandWrittenCentreIsNoPoint()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("Tools/Trajector/trajector.ini", "[view]\nmapCenter=\"2,49\"\n");
        QCOMPARE(settings().mapCenter, QPointF(0.0, 0.0));
    }

    void aDamagedFileGivesTheDefaults()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("Tools/Trajector/trajector.ini", QByteArray("\0\xff[view\n===\n@Variant(", 22));
        QVERIFY(settings().showAirport);
        QCOMPARE(settings().zoom, 6.0);
    }

    void aFileSavedAsUnicodeIsReadAndKeepsItsForeignKeys_data()
    {
        QTest::addColumn<QString>("codec");
        QTest::addColumn<QByteArray>("mark");
        QTest::newRow("low byte first") << "UTF-16LE" << QByteArray("\xFF\xFE");
        QTest::newRow("high byte first") << "UTF-16BE" << QByteArray("\xFE\xFF");
        QTest::newRow("no mark") << "UTF-16LE" << QByteArray();
    }

    void aFileSavedAsUnicodeIsReadAndKeepsItsForeignKeys()
    {
        QFETCH(QString, codec);
        QFETCH(QByteArray, mark);
        Sandbox sandbox(Sandbox::Databases::None);
        const QString text = QString::fromUtf8("[view]\r\nshowAirport=false\r\nzoom=9\r\n\r\n[directory]\r\n"
                                               "dirWork=/Données/Œuvre ŁA\r\nmine=ŁŁ1\r\n");
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QByteArray bytes =
            mark + QTextCodec::codecForName(codec.toLatin1())->fromUnicode(text.constData(), text.size(), &state);
        sandbox.writeFile("Tools/Trajector/trajector.ini", bytes);
        for (const char* run : {"as the editor left it", "as the first run left it"}) {
            QVERIFY2(!settings().showAirport, run);
            QCOMPARE(settings().zoom, 9.0);
            QCOMPARE(settings().dirWork.path(), QString::fromUtf8("/Données/Œuvre ŁA"));
            leave();
            const QSettings file(sandbox.path("Tools/Trajector/trajector.ini"), QSettings::IniFormat);
            QCOMPARE(file.value("directory/mine").toString(), QString::fromUtf8("ŁŁ1"));
            QVERIFY(!sandbox.readFile("Tools/Trajector/trajector.ini").contains('\0'));
        }
    }

    void aDamagedPackedValueCountsAsMissingAndStaysAText()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QByteArray list = "@Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xff)\n"; // two thousand million texts
        sandbox.writeFile("Tools/Trajector/trajector.ini",
                          "[other]\nmine=1\nlist=" + list + "[view]\nmapCenter=" + list + "route=BE\nzoom=" + list);
        QCOMPARE(settings().mapCenter, QPointF(2.0, 49.0));
        QCOMPARE(settings().zoom, 6.0);
        QCOMPARE(settings().route, QString("BE"));
        settings().mapCenter = QPointF(-4.25, 48.5);
        leave();
        QCOMPARE(settings().mapCenter, QPointF(-4.25, 48.5));
        const QSettings file(sandbox.path("Tools/Trajector/trajector.ini"), QSettings::IniFormat);
        QCOMPARE(file.value("other/mine").toString(), QString("1"));
        QVERIFY(file.value("other/list").toString().startsWith("@Variant("));
    }

    void aFileOfMoreThanSettingsCountsAsMissingAndStays()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("Tools/Trajector/trajector.ini", "[view]\nroute=BE\n");
        QFile file(sandbox.path("Tools/Trajector/trajector.ini"));
        QVERIFY(file.resize(4LL * 1024 * 1024 + 1));
        QCOMPARE(settings().route, QString("FR"));
        leave();
        QCOMPARE(file.size(), 4LL * 1024 * 1024 + 1);
        QVERIFY(file.resize(4LL * 1024 * 1024));
        QCOMPARE(settings().route, QString("BE"));
    }

    void aFileThatCannotBeReadStays()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QByteArray before = sandbox.readFile("Tools/Trajector/trajector.ini");
        for (QDir way(sandbox.path("Tools/Trajector")); way.path().startsWith(QDir::tempPath() + '/'); way.cdUp())
            QCOMPARE(chmod(QFile::encodeName(way.path()).constData(), 0777), 0);
        const QByteArray file = QFile::encodeName(sandbox.path("Tools/Trajector/trajector.ini"));
        QCOMPARE(chmod(file.constData(), 0200), 0);
        MessageLog log;
        {
            const OrdinaryUser user(file);
            if (!user.is || !QFile(QFile::decodeName(file)).open(QIODevice::WriteOnly | QIODevice::Append))
                QSKIP("the administrator can be nobody else here");
            QVERIFY(!QFile(QFile::decodeName(file)).open(QIODevice::ReadOnly));
            QCOMPARE(settings().zoom, 6.0);
            leave();
        }
        QCOMPARE(chmod(file.constData(), 0600), 0);
        QCOMPARE(log.messages(), QStringList{"trajector.ini not saved"});
        QCOMPARE(sandbox.readFile("Tools/Trajector/trajector.ini"), before);
    }

    void aPipeIsNotWaitedFor()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QString path = sandbox.path("Tools/Trajector/trajector.ini");
        sandbox.removeFile("Tools/Trajector/trajector.ini");
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QCOMPARE(settings().zoom, 6.0);
        leave();
        QVERIFY(QFileInfo::exists(path) && !QFileInfo(path).isFile());
    }

    void aLockThatNobodyGivesBackLeavesTheFile_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::newRow("a folder of its name") << "trajector.ini.lock/inside.txt";
        QTest::newRow("a fresh one without an owner") << "trajector.ini.lock";
    }

    void aLockThatNobodyGivesBackLeavesTheFile()
    {
        QFETCH(QString, entry);
        Sandbox sandbox(Sandbox::Databases::None);
        const QByteArray before = sandbox.readFile("Tools/Trajector/trajector.ini");
        settings().route = "BE";
        sandbox.writeFile("Tools/Trajector/" + entry, "");
        MessageLog log;
        leave();
        QCOMPARE(log.messages(), QStringList{"trajector.ini not saved"});
        QCOMPARE(sandbox.readFile("Tools/Trajector/trajector.ini"), before);
        QVERIFY(sandbox.hasFile("Tools/Trajector/" + entry));
    }

    void theSingletonIsOneObjectUntilDeleted()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        CNavGlobalVar* first = CNavGlobalVar::instance();
        QCOMPARE(CNavGlobalVar::instance(), first);
        first->zoom = 11.0;
        leave();
        leave();
        QCOMPARE(settings().zoom, 11.0);
    }

    void whatARunWritesComesBack()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        settings().showAirport = false;
        settings().showVor = false;
        settings().showNdbRte = false;
        settings().showNdbTerm = false;
        settings().showWaypointRte = false;
        settings().showWaypointTerm = false;
        settings().showWaypointVfr = false;
        settings().showATSL = false;
        settings().zoom = 7.25;
        // Bit exact: no decimal text between.
        settings().mapCenter = QPointF(1.0 / 3.0, -0.1);
        settings().dirWork.setPath(sandbox.path("Other, with a comma"));
        settings().route = "LF";
        settings().traceInterval = 1000;
        leave();
        QVERIFY(!settings().showAirport);
        QVERIFY(!settings().showVor);
        QVERIFY(!settings().showNdbRte);
        QVERIFY(!settings().showNdbTerm);
        QVERIFY(!settings().showWaypointRte);
        QVERIFY(!settings().showWaypointTerm);
        QVERIFY(!settings().showWaypointVfr);
        QVERIFY(!settings().showATSL);
        QVERIFY(settings().showATSH);
        QCOMPARE(settings().zoom, 7.25);
        QVERIFY(settings().mapCenter.x() == 1.0 / 3.0);
        QVERIFY(settings().mapCenter.y() == -0.1);
        QCOMPARE(settings().dirWork.path(), sandbox.path("Other, with a comma"));
        QCOMPARE(settings().route, QString("LF"));
        QCOMPARE(settings().traceInterval, 1000);
    }

    void mixedAirwaysOffComesBackAsHighAirwaysOff()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        settings().showATSB = false;
        leave();
        QVERIFY(!settings().showATSH);
        QVERIFY(settings().showATSB);
    }

    void highAirwaysOffIsForgotten()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        settings().showATSH = false;
        leave();
        QVERIFY(settings().showATSH);
    }

    void fullScreenComesBackAsAirspaceOff()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        settings().showDock = false;
        leave();
        QVERIFY(!settings().showBoundary);
        QVERIFY(settings().showDock);
    }

    void airspaceOffIsForgotten()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        settings().showBoundary = false;
        leave();
        QCOMPARE(sandbox.setting("view/showBoundary").toBool(), true);
    }

    void twoKeysAreNeverWritten()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        settings();
        leave();
        const QByteArray written = sandbox.readFile("Tools/Trajector/trajector.ini");
        QVERIFY(written.contains("showAirport=true"));
        QVERIFY(written.contains("showATSH=true"));
        QVERIFY(!written.contains("showATSB"));
        QVERIFY(!written.contains("showDock"));
    }

    void theKeysOfAWrittenFile()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeSettings();
        settings();
        leave();
        QStringList keys = QSettings("trajector.ini", QSettings::IniFormat).allKeys();
        keys.sort();
        QCOMPARE(keys, (QStringList{"directory/dirWork", "trace/intervale", "view/mapCenter", "view/route",
                                    "view/showATSH", "view/showATSL", "view/showAirport", "view/showBoundary",
                                    "view/showNdbRte", "view/showNdbTerm", "view/showVor", "view/showWaypointRte",
                                    "view/showWaypointTerm", "view/showWaypointVfr", "view/zoom"}));
    }

    void anUnwritableFileGoesUnnoticed()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile("Tools/Trajector/trajector.ini");
        // A folder at the file's place can be neither read nor written.
        sandbox.writeFile("Tools/Trajector/trajector.ini/inside.txt", "");
        QCOMPARE(settings().zoom, 6.0);
        leave();
        QVERIFY(sandbox.hasFile("Tools/Trajector/trajector.ini/inside.txt"));
    }
};

QTEST_GUILESS_MAIN(TestCNavGlobalVar)
#include "tst_cnavglobalvar.moc"
