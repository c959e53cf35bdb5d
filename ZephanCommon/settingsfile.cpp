#include "settingsfile.h"

#include "inivalues.h"
#include "wholefile.h"
#include "wideini.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace {

// Neither a file of two-byte characters, between whose bytes QSettings would put the new keys, nor one with values that
// it cannot unpack without harm is a file that it may write to. False where such a file cannot be replaced, and for one
// that cannot be read: QSettings takes it for an empty one.
bool makeWritable(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        return true; // there is none yet
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return false;
    }
    const QByteArray understood = withHarmlessValues(settingsBytes(bytes));
    file.close();
    return understood == bytes || writeWholeFile(path, understood) == WriteEnd::Whole;
}

// QSettings waits for its lock without end, and the window has gone by then, or not come yet: a second program that was
// stopped while it wrote, or a folder of that name, must not keep this one.
bool isLockFree(const QString& path)
{
    constexpr int patience = 3000; // milliseconds
    QLockFile lock(path + QStringLiteral(".lock"));
    return lock.tryLock(patience);
}

} // namespace

QVariant settingsValue(const QSettings& settings, const QString& key, const QVariant& usual)
{
    const QVariant value = settings.value(key, usual);
    return value.type() == QVariant::String && isHarmlessRest(value.toString()) ? usual : value;
}

bool canSaveSettings(const QString& path)
{
    // On a full disk QSettings leaves an empty file and takes it for written; the file from before is better.
    constexpr qint64 furtherKeys = 16384;
    const QFileInfo present(path);
    if (present.exists() && !isSettingsFile(path)) {
        return false;
    }
    return hasRoomBeside(path, present.size() + furtherKeys) && isLockFree(path) && makeWritable(path);
}
