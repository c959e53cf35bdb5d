#pragma once

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <cstring>

/// A file that holds less than its size tells, as the files of a device or of a network folder may: behind its bytes
/// every read gives nothing, or fails. It is never at its end.
class ShortDevice : public QIODevice
{
public:
    enum class Behind
    {
        Nothing,
        Failure
    };

    ShortDevice(const QByteArray& content, Behind behindContent) : bytes(content), behind(behindContent)
    {
        open(QIODevice::ReadOnly);
    }

    qint64 size() const override
    {
        return bytes.size() + 4096;
    }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const qint64 count = std::min(maxSize, bytes.size() - taken);
        if (count > 0) {
            std::memcpy(data, bytes.constData() + taken, static_cast<size_t>(count));
            taken += count;
            return count;
        }
        // A reader that waits for the end would fill the memory.
        if (maxSize > 0 && ++idleReads > 1000) {
            qFatal("short device: the reader goes on behind the last byte");
        }
        return behind == Behind::Failure ? -1 : 0;
    }
    qint64 writeData(const char*, qint64) override
    {
        return -1;
    }

private:
    const QByteArray bytes;
    const Behind behind;
    qint64 taken = 0;
    int idleReads = 0;
};
