// The program's entry, each start in a process of its own.
#include "childprocess.h"
#include "sandbox.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTextStream>
#include <QTimer>
#include <QtTest>

int qMain(int argc, char** argv);

namespace {

const QString logFile = QStringLiteral("Tools/Trajector/trajector_debug.log");
const QString settingsFile = QStringLiteral("Tools/Trajector/trajector.ini");
const QString startMark = QStringLiteral("Starting ZephanTrajector");

int childExitCode = -1;

/// In the child: tells what a message box shows and answers it.
void answerABox()
{
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << box->windowTitle() << '|' << box->text() << '|' << box->icon() << '|' << box->buttons().size() << Qt::endl;
    box->button(QMessageBox::Ok)->click();
}

/// In the child: once the window is there, tells one of its texts and ends the event loop.
void endWhenShown()
{
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (!qobject_cast<const QMainWindow*>(widget) || !widget->isVisible())
            continue;
        QTextStream out(stdout);
        out.setCodec("UTF-8");
        const auto* dock = widget->findChild<QDockWidget*>("dockWFlightPlan");
        out << widget->windowTitle() << '|' << (dock ? dock->windowTitle() : "(no dock)") << Qt::endl;
        QApplication::exit(childExitCode);
    }
}

void watchTheChild()
{
    if (childExitCode < 0)
        return;
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, endWhenShown);
    QObject::connect(timer, &QTimer::timeout, answerABox);
    timer->start(20);
}

ChildRun start(const QString& locale, int exitCode = 0)
{
    return runChildProcess({"--start", QString::number(exitCode)}, {{"LC_ALL", locale}, {"LANGUAGE", QString()}});
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchTheChild)

class TestProgramStart : public QObject
{
    Q_OBJECT

private slots:
    void theInterfacesLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("catalogueTried");
        QTest::newRow("fr_FR") << "fr_FR.UTF-8"
                               << "fr_FR" << false;
        QTest::newRow("fr_CA") << "fr_CA.UTF-8"
                               << "fr_CA" << false;
        QTest::newRow("en_US") << "en_US.UTF-8"
                               << "en_US" << true;
        QTest::newRow("de_DE") << "de_DE.UTF-8"
                               << "de_DE" << true;
        QTest::newRow("C") << "C"
                           << "C" << true;
    }

    void theInterfacesLanguage()
    {
        Sandbox sandbox;
        QVERIFY(QFile::copy(TEST_CATALOGUE, "zephantrajector_en.qm"));
        QFETCH(QString, locale);
        QFETCH(QString, name);
        QFETCH(bool, catalogueTried);
        const ChildRun run = start(locale);
        QVERIFY2(run.exitStatus == QProcess::NormalExit, qPrintable(run.log));
        const int localeAt = run.log.indexOf(QString("locale \"%1\"").arg(name));
        const int catalogueAt = run.log.indexOf("english version loaded");
        const int windowAt = run.log.indexOf(startMark);
        QVERIFY2(localeAt >= 0 && localeAt < windowAt, qPrintable(run.log));
        QCOMPARE(catalogueAt > localeAt && catalogueAt < windowAt, catalogueTried);
        QCOMPARE(catalogueAt >= 0, catalogueTried);
        QCOMPARE(run.output, QString("Zephan Trajector - Version 0.22 novembre 2013|%1\n")
                                 .arg(catalogueTried ? "Flight plan of the test catalogue" : "Plan de vol"));
    }

    void withoutACatalogueItStaysFrench()
    {
        Sandbox sandbox;
        const ChildRun run = start("en_US.UTF-8");
        QVERIFY(run.log.contains("english version loaded"));
        QCOMPARE(run.output, QString("Zephan Trajector - Version 0.22 novembre 2013|Plan de vol\n"));
    }

    void theOldLogIsGoneAndNoneIsWritten()
    {
        Sandbox sandbox;
        sandbox.writeFile(logFile, "an earlier run\n");
        const ChildRun run = start("fr_FR.UTF-8");
        QCOMPARE(run.exitStatus, QProcess::NormalExit);
        QVERIFY(run.log.contains("Start ended"));
        QVERIFY(!sandbox.hasFile(logFile));
    }

    void theExitStatusIsTheEventLoops_data()
    {
        QTest::addColumn<int>("code");
        QTest::newRow("ordinary") << 0;
        QTest::newRow("another") << 7;
    }

    void theExitStatusIsTheEventLoops()
    {
        Sandbox sandbox;
        QFETCH(int, code);
        const ChildRun run = start("fr_FR.UTF-8", code);
        QCOMPARE(run.exitStatus, QProcess::NormalExit);
        QCOMPARE(run.exitCode, code);
    }

    void theEndWritesTheSettings()
    {
        Sandbox sandbox;
        sandbox.removeSettings();
        sandbox.setSetting("directory/dirWork", sandbox.path("Work"));
        QCOMPARE(start("fr_FR.UTF-8").exitStatus, QProcess::NormalExit);
        QCOMPARE(sandbox.setting("view/route").toString(), QString("FR"));
    }

    void aDatabaseOfAnotherVersionEndsTheProgram_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("found");
        QTest::addColumn<int>("expected");
        QTest::newRow("the first database") << dbfile::gen << 1 << 0;
        QTest::newRow("an older model database") << dbfile::m3d << 2 << 3;
        QTest::newRow("a newer model database") << dbfile::m3d << 4 << 3;
        QTest::newRow("the last database") << dbfile::route << 7 << 0;
    }

    /// The box, and then nothing more: no window, no settings written.
    void aDatabaseOfAnotherVersionEndsTheProgram()
    {
        Sandbox sandbox;
        QFETCH(QString, file);
        QFETCH(int, found);
        QFETCH(int, expected);
        sandbox.sql(file, QString("PRAGMA user_version = %1").arg(found));
        const QByteArray settings = sandbox.readFile(settingsFile);
        QVERIFY(settings.contains("dirWork"));
        const ChildRun run = start("fr_FR.UTF-8");
        QVERIFY(run.finished);
        QCOMPARE(run.exitStatus, QProcess::CrashExit);
        const QString text = QString("M3D : La version attendue est %1.\nLa version trouvée est %2.\n"
                                     "Le programme va s'arréter.")
                                 .arg(expected)
                                 .arg(found);
        // The critical icon (3) and one button; a window would have told its title.
        QCOMPARE(run.output, QString("Erreur de version de base de données|%1|3|1\n").arg(text));
        QVERIFY2(run.log.contains(startMark), qPrintable(run.log));
        QVERIFY2(run.log.trimmed().endsWith("CGlobalVar::initDB M3D : erreur de version"), qPrintable(run.log));
        QCOMPARE(sandbox.readFile(settingsFile), settings);
    }
};

int main(int argc, char** argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--start") == 0) {
        childExitCode = atoi(argv[2]);
        return qMain(argc, argv);
    }
    QApplication application(argc, argv);
    TestProgramStart test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_programstart.moc"
