// The test program as its own child.
#include "childprocess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>

namespace {

const char childMark[] = "ZEPHAN_TEST_CHILD";

/// Path of the program to run: the present one, or a fresh copy of it in a folder.
QString programIn(const QString& copyIn)
{
    QString program = QCoreApplication::applicationFilePath();
    if (copyIn.isEmpty())
        return program;
    QString copy = QDir(copyIn).filePath(QFileInfo(program).fileName());
    if (!QFile::copy(program, copy))
        qFatal("cannot copy the test program to %s", qPrintable(copy));
    return copy;
}

} // namespace

ChildRun runChildProcess(const QStringList& arguments, const QVector<QPair<QString, QString>>& variables,
                         const QString& copyIn)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_FORCE_STDERR_LOGGING", "1");
    environment.insert(childMark, "1");
    for (const auto& variable : variables) {
        if (variable.second.isNull())
            environment.remove(variable.first);
        else
            environment.insert(variable.first, variable.second);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(programIn(copyIn), arguments);
    ChildRun run;
    run.finished = process.waitForFinished(60000);
    if (!run.finished) {
        process.kill();
        process.waitForFinished();
    }
    run.exitStatus = process.exitStatus();
    run.exitCode = process.exitCode();
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.log = QString::fromUtf8(process.readAllStandardError());
    return run;
}

bool inChildProcess()
{
    return qEnvironmentVariableIsSet(childMark);
}
