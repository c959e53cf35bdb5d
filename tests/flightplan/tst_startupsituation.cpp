// The simulator's ini file, whose start-up line comes to name a situation.
#include "sandbox.h"
#include "shortdevice.h"
#include "startupsituation.h"

#include <QDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString iniFile = QStringLiteral("system/AeoZephan.ini");

} // namespace

class TestStartupSituation : public QObject
{
    Q_OBJECT

    /// A text in two bytes a character, without a mark.
    static QByteArray wide(const QString& text, bool highByteFirst)
    {
        QByteArray bytes;
        for (const QChar character : text) {
            const char high = static_cast<char>(character.row());
            const char low = static_cast<char>(character.cell());
            bytes += highByteFirst ? high : low;
            bytes += highByteFirst ? low : high;
        }
        return bytes;
    }

private slots:
    void iniKeepsEveryOtherLine()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "[SQL]\n  GENDB = ../SQL \n\n; comment\nstartupSituation=Old.sit\n[UI]\n\tx=1");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "PARIS ORLY.SIT"));
        QCOMPARE(sandbox.readFile(iniFile),
                 QByteArray("[SQL]\n  GENDB = ../SQL \n\n; comment\n"
                            "startupSituation=Saved Simulations/PARIS ORLY.SIT\n[UI]\n\tx=1"));
        QCOMPARE(sandbox.filesIn("system"), QStringList{"AeoZephan.ini"});
    }

    void iniLosesItsFinalLineFeed()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "startupSituation=Old.sit\nx=1\n");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), QByteArray("startupSituation=Saved Simulations/A.SIT\nx=1"));
    }

    void everyLineThatStartsWithTheKeyIsReplaced()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "startupSituation=1\nstartupSituationOld=2\n startupSituation=3\n"
                                   "StartupSituation=4\nstartupSituation\n");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile),
                 QByteArray("startupSituation=Saved Simulations/A.SIT\nstartupSituation=Saved Simulations/A.SIT\n"
                            " startupSituation=3\nStartupSituation=4\nstartupSituation=Saved Simulations/A.SIT"));
    }

    void withoutTheKeyNoLineIsAdded()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "[UI]\nx=1\n");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), QByteArray("[UI]\nx=1"));
    }

    void carriageReturnsGo()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "a=1\r\nstartupSituation=Old.sit\r\nb=2\r\n");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), QByteArray("a=1\nstartupSituation=Saved Simulations/A.SIT\nb=2"));
    }

    void bytesOfAnyCodePageStay()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        QByteArray all = "; ";
        for (int byte = 1; byte < 256; ++byte) {
            all += byte == '\r' || byte == '\n' ? ' ' : static_cast<char>(byte);
        }
        sandbox.writeFile(iniFile, all + "\nstartupSituation=Old.sit");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), QString::fromUtf8("ORLÉANS.SIT")));
        QCOMPARE(sandbox.readFile(iniFile), all + "\nstartupSituation=Saved Simulations/ORL\xC3\x89"
                                                  "ANS.SIT");
    }

    void byteOrderMarkHidesNoKeyAndGoes_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const QByteArray mark = "\xEF\xBB\xBF";
        const QByteArray line = "startupSituation=Saved Simulations/A.SIT";
        QTest::newRow("the key in the first line") << mark + "startupSituation=Old.sit\nx=1\n" << line + "\nx=1";
        QTest::newRow("the key in the only line") << mark + "startupSituation=Old.sit" << line;
        QTest::newRow("the key further down") << mark + "[UI]\r\nstartupSituation=Old.sit\r\n"
                                              << "[UI]\n" + line;
        QTest::newRow("no key") << mark + "[UI]\nx=1" << QByteArray("[UI]\nx=1");
        QTest::newRow("nothing but the mark") << mark << QByteArray();
        QTest::newRow("an empty first line") << mark + "\nstartupSituation=Old.sit"
                                             << "\n" + line;
        QTest::newRow("only one mark goes") << mark + mark + "startupSituation=1" << mark + "startupSituation=1";
        QTest::newRow("a mark further down is text") << "x=1\n" + mark + "startupSituation=1"
                                                     << "x=1\n" + mark + "startupSituation=1";
        QTest::newRow("half a mark is text")
            << QByteArray("\xEF\xBBstartupSituation=1") << QByteArray("\xEF\xBBstartupSituation=1");
        QTest::newRow("other code pages behind the mark") << mark + "\xE9\xFF\x80=\xC3\xA9\nstartupSituation=1"
                                                          << "\xE9\xFF\x80=\xC3\xA9\n" + line;
    }

    void byteOrderMarkHidesNoKeyAndGoes()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, before);
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), after);
    }

    void twoByteCharactersStayWhatTheyAre_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        // U+0A0D and U+0D0A hold the bytes of a line end, U+010A that of a line feed.
        const QString others = QString::fromUtf8("[UI]\né=\xE0\xA8\x8D\xE0\xB4\x8AĊ\n%1\nlast=1%2");
        const QString old = "startupSituation=Old.sit";
        const QString line = QString::fromUtf8("startupSituation=Saved Simulations/ORLÉANS.SIT");
        const QString dos = QString(others).replace('\n', "\r\n");
        for (const bool big : {false, true}) {
            const char* order = big ? "high byte first" : "low byte first";
            const QByteArray mark = big ? "\xFE\xFF" : "\xFF\xFE";
            const QByteArray after = wide(others.arg(line, ""), big);
            QTest::addRow("%s, line feeds", order) << mark + wide(others.arg(old, "\n"), big) << mark + after;
            QTest::addRow("%s, carriage returns", order) << mark + wide(dos.arg(old, "\r\n"), big) << mark + after;
            QTest::addRow("%s, key in the first line", order) << mark + wide(old, big) << mark + wide(line, big);
            QTest::addRow("%s, no mark", order) << wide(others.arg(old, "\n"), big) << after;
            QTest::addRow("%s, nothing but the mark", order) << mark << mark;
        }
    }

    void twoByteCharactersStayWhatTheyAre()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, before);
        QVERIFY(setStartupSituation(sandbox.path(iniFile), QString::fromUtf8("ORLÉANS.SIT")));
        QCOMPARE(sandbox.readFile(iniFile), after);
    }

    void aLineEndInTheNameCannotWriteLinesOfItsOwn_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("carriage return") << "PARIS\r[SQL]\rGENDB=ELSEWHERE.SIT";
        QTest::newRow("line feed") << "PARIS\n[SQL]\nGENDB=ELSEWHERE.SIT";
        QTest::newRow("end of a text") << QString("PARIS") + QChar(0) + ".SIT";
    }

    void aLineEndInTheNameCannotWriteLinesOfItsOwn()
    {
        QFETCH(QString, name);
        for (const QByteArray& before : {QByteArray("[UI]\nstartupSituation=Old.sit\n"),
                                         "\xFF\xFE" + wide("[UI]\nstartupSituation=Old.sit\n", false)}) {
            const Sandbox sandbox(Sandbox::Databases::None);
            sandbox.writeFile(iniFile, before);
            QVERIFY(!setStartupSituation(sandbox.path(iniFile), name));
            QCOMPARE(sandbox.readFile(iniFile), before);
        }
    }

    void whatIsNoSettingsFileIsLeftAlone()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "startupSituation=Old.sit\n");
        QFile file(sandbox.path(iniFile));
        QVERIFY(file.resize(4LL * 1024 * 1024 + 1));
        QVERIFY(!setStartupSituation(file.fileName(), "A.SIT"));
        QCOMPARE(file.size(), 4LL * 1024 * 1024 + 1);
        QVERIFY(file.remove());
        QCOMPARE(mkfifo(QFile::encodeName(file.fileName()).constData(), 0600), 0);
        QVERIFY(!setStartupSituation(file.fileName(), "A.SIT")); // waits for nobody
    }

    void halfACharacterIsLeftAlone()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        const QByteArray before = "\xFF\xFE" + wide("startupSituation=Old.sit\n", false) + "x";
        sandbox.writeFile(iniFile, before);
        QVERIFY(!setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), before);
    }

    void iniThatGivesLessThanItsSizeEnds()
    {
        const QStringList expected{"[UI]", "startupSituation=Saved Simulations/A.SIT", "", "x="};
        for (const auto behind : {ShortDevice::Behind::Nothing, ShortDevice::Behind::Failure}) {
            ShortDevice device("[UI]\nstartupSituation=Old.sit\n\nx=", behind);
            QCOMPARE(startupLines(device, "A.SIT"), expected);
        }
    }

    void iniThatCannotBeReadIsNotRewritten()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        const QByteArray before = "[UI]\nstartupSituation=Old.sit\n";
        sandbox.writeFile(iniFile, before);
        QFile file(sandbox.path(iniFile));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        // Under the open file lies one that only takes bytes, so that every read fails.
        QFile writing(sandbox.path(iniFile));
        QVERIFY(writing.open(QIODevice::WriteOnly | QIODevice::Append));
        QVERIFY(dup2(writing.handle(), file.handle()) >= 0);
        QVERIFY(!setStartupSituation(file, "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), before);
        QCOMPARE(sandbox.filesIn("system"), QStringList{"AeoZephan.ini"});
    }

    void iniOfTheSystemThatIsNeverAtItsEndIsLeft()
    {
        // A page by its size, and every read of it fails.
        const QString target = "/sys/class/net/lo/speed";
        QFile unreadable(target);
        if (!unreadable.open(QIODevice::ReadOnly)) {
            QSKIP("this machine has no such file");
        }
        QVERIFY(unreadable.size() > 1000);
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile(iniFile);
        QVERIFY(QFile::link(target, sandbox.path(iniFile)));
        QVERIFY(!setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QVERIFY(QFileInfo(sandbox.path(iniFile)).isSymLink());
    }

    void emptyIniStaysEmpty()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "");
        QVERIFY(setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), QByteArray());
    }

    void missingIniIsNotMade()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile(iniFile);
        QVERIFY(!setStartupSituation(sandbox.path(iniFile), "A.SIT"));
        QVERIFY(sandbox.filesIn("system").isEmpty());
    }

    void iniPathMayHoldBackslashes()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(iniFile, "startupSituation=Old.sit");
        QVERIFY(setStartupSituation(sandbox.root() + "\\system\\AeoZephan.ini", "A.SIT"));
        QCOMPARE(sandbox.readFile(iniFile), QByteArray("startupSituation=Saved Simulations/A.SIT"));
    }
};

QTEST_MAIN(TestStartupSituation)
#include "tst_startupsituation.moc"
