#pragma once

#include <QPair>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QVector>

/// What a process of its own left behind.
struct ChildRun
{
    bool finished = false; ///< false when it had to be killed after a minute
    QProcess::ExitStatus exitStatus = QProcess::CrashExit;
    int exitCode = -1;
    QString output; ///< standard output, UTF-8
    QString log;    ///< standard error, where Qt's own message sink writes
};

/// Runs the present program once more in the current directory with these arguments, for what cannot be undone in one
/// process: an abort, another language. A variable with a null text is removed from the environment, others are set.
/// With `copyIn` a copy of the program in that folder runs, which finds nothing beside itself.
ChildRun runChildProcess(const QStringList& arguments, const QVector<QPair<QString, QString>>& variables = {},
                         const QString& copyIn = QString());
/// True in a program that runChildProcess has started: a test function that runs itself once more asks this.
bool inChildProcess();
