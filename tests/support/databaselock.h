#pragma once

#include <QProcess>
#include <QString>

/// Another program holds a lock on a database file while this object lives.
class DatabaseLock
{
public:
    enum class Kind
    {
        Reserved, ///< others can read and not write
        Exclusive ///< others can do neither
    };

    /// Returns when the lock is held; a lock that is refused ends the test program.
    DatabaseLock(const QString& file, Kind kind);
    ~DatabaseLock();
    DatabaseLock(const DatabaseLock&) = delete;
    DatabaseLock& operator=(const DatabaseLock&) = delete;

private:
    QProcess holder;
};
