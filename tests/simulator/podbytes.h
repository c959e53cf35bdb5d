#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

/// The bytes of an archive, made by hand as the simulator lays it out.
struct PodBytes
{
    struct Entry
    {
        QByteArray name;
        QByteArray data;
    };

    static constexpr int headerSize = 276;
    static constexpr int recordSize = 20;

    static void setNumber(QByteArray& bytes, int offset, qint32 value)
    {
        qToLittleEndian(value, bytes.data() + offset);
    }

    /// Header, data of all entries, records, names.
    static QByteArray archive(const QList<Entry>& entries)
    {
        QByteArray bytes = header(entries.size());
        QByteArray directory;
        QByteArray names;
        for (const Entry& entry : entries) {
            directory += record(entry.data.size(), bytes.size());
            names += entry.name + '\0';
            bytes += entry.data;
        }
        setNumber(bytes, 264, bytes.size());
        return bytes + directory + names;
    }

    static QByteArray header(int entryCount)
    {
        QByteArray bytes(headerSize, '\0');
        bytes.replace(0, 4, "POD3");
        setNumber(bytes, 88, entryCount);
        return bytes;
    }

    static QByteArray record(int size, int offset)
    {
        QByteArray bytes(recordSize, '\0');
        setNumber(bytes, 0, 11);
        setNumber(bytes, 4, size);
        setNumber(bytes, 8, offset);
        setNumber(bytes, 12, 33);
        setNumber(bytes, 16, 44);
        return bytes;
    }
};
