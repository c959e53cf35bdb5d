// The lines of the debug log.
#include "logmessagehandler.h"

#include "childprocess.h"
#include "sandbox.h"

#include <QCoreApplication>
#include <QtTest>

namespace {

const QString logFile = QStringLiteral("Tools/Trajector/trajector_debug.log");

void write(QtMsgType type, const char* function, int line, const QString& message)
{
    logMessageHandler(type, QMessageLogContext("file.cpp", line, function, "category"), message);
}

} // namespace

class TestLogMessageHandler : public QObject
{
    Q_OBJECT

private slots:
    void patternOfAType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("debug") << 0 << QByteArray("[debug   ] (void f() : 12) - text\n");
        QTest::newRow("warning") << 1 << QByteArray("[warning ] (void f() : 12) - text\n");
        QTest::newRow("critical") << 2 << QByteArray("[critical] (void f() : 12) - text\n");
        QTest::newRow("a type without a pattern") << 4 << QByteArray("\n");
        QTest::newRow("a type that is none") << 7 << QByteArray("\n");
    }

    void patternOfAType()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QFETCH(int, type);
        write(QtMsgType(type), "void f()", 12, "text");
        QTEST(sandbox.readFile(logFile).replace("\r\n", "\n"), "line");
    }

    void aMissingFunctionIsEmpty()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        write(QtDebugMsg, nullptr, 0, "text");
        QCOMPARE(sandbox.readFile(logFile).trimmed(), QByteArray("[debug   ] ( : 0) - text"));
    }

    void placesInTheTextsAreNotFilled()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        write(QtDebugMsg, "%3 %2", 1, "100%1");
        QCOMPARE(sandbox.readFile(logFile).trimmed(), QByteArray("[debug   ] (%3 %2 : 1) - 100%1"));
    }

    void messagesAreAppended()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(logFile, "before\n");
        write(QtDebugMsg, "f", 1, "first");
        write(QtWarningMsg, "g", 2, "second");
        QCOMPARE(sandbox.readFile(logFile).replace("\r\n", "\n"),
                 QByteArray("before\n[debug   ] (f : 1) - first\n[warning ] (g : 2) - second\n"));
    }

    void aFileThatCannotBeOpenedIsIgnored()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(logFile + "/inside.txt", "");
        write(QtDebugMsg, "f", 1, "lost");
        QVERIFY(sandbox.hasFile(logFile + "/inside.txt"));
    }

    void installedItTakesTheMessages()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QtMessageHandler previous = qInstallMessageHandler(logMessageHandler);
        qDebug("through the handler");
        qInstallMessageHandler(previous);
        QVERIFY(sandbox.readFile(logFile).contains(" - through the handler"));
    }

    void aFatalMessageAbortsBeforeItsLineIsWritten()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const ChildRun run = runChildProcess({"--fatal"});
        QVERIFY(run.finished);
        QCOMPARE(run.exitStatus, QProcess::CrashExit);
        QCOMPARE(sandbox.readFile(logFile).trimmed(), QByteArray("[debug   ] (f : 1) - before"));
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == "--fatal") {
        write(QtDebugMsg, "f", 1, "before");
        write(QtFatalMsg, "f", 2, "the end");
        write(QtDebugMsg, "f", 3, "after");
        return 0;
    }
    TestLogMessageHandler test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logmessagehandler.moc"
