// The test program as its own child.
#include "childprocess.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

ChildRun runChildProcess(const QStringList& arguments, const QVector<QPair<QString, QString>>& variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_FORCE_STDERR_LOGGING", "1");
    for (const auto& variable : variables) {
        if (variable.second.isNull())
            environment.remove(variable.first);
        else
            environment.insert(variable.first, variable.second);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), arguments);
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
