// The other program that has the simulator's databases open.
#include "databaselock.h"

#include <QCoreApplication>

DatabaseLock::DatabaseLock(const QString& file, Kind kind)
{
    holder.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    holder.start(QCoreApplication::applicationDirPath() + "/dblocker",
                 {file, kind == Kind::Exclusive ? "exclusive" : "reserved"});
    if (!holder.waitForReadyRead(30000) || holder.readAllStandardOutput().trimmed() != "locked")
        qFatal("database lock: %s is not locked", qPrintable(file));
}

DatabaseLock::~DatabaseLock()
{
    holder.closeWriteChannel();
    holder.waitForFinished(30000);
}
