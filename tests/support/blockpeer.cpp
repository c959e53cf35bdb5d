// The simulator's side of the shared block.
#include "blockpeer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int patience = 20000; // milliseconds

} // namespace

NoBlock::NoBlock()
{
    remove();
}

NoBlock::~NoBlock()
{
    remove();
}

QString NoBlock::path()
{
    return "/dev/shm/AeoZephanToNavigation";
}

void NoBlock::remove()
{
    if (QFileInfo(path()).isDir())
        QDir().rmdir(path());
    else
        QFile::remove(path());
}

BlockPeer::~BlockPeer()
{
    kill();
}

bool BlockPeer::publish(const QString& latS, const QString& lonS, const QString& heading)
{
    if (process.state() == QProcess::NotRunning) {
        process.start(QCoreApplication::applicationDirPath() + "/blockpeer", QStringList());
        if (!process.waitForStarted(patience))
            return false;
    }
    process.write(QString("%1 %2 %3\n").arg(latS, lonS, heading).toLatin1());
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(patience))
            return false;
    }
    return process.readLine() == "published\n";
}

void BlockPeer::kill()
{
    process.kill();
    process.waitForFinished(patience);
}
