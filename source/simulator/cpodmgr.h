#pragma once

#include <QFile>
#include <QList>
#include <QString>

#include <deque>

/// One directory entry of an archive.
struct PodEntry
{
    QString name;
    qint32 word0 = 0;
    qint32 size = 0;   ///< bytes of the entry's data
    qint32 offset = 0; ///< of the entry's data, from the start of the file
    qint32 word3 = 0;
    qint32 word4 = 0;
};

/// Reads one POD archive: its directory, the text of an entry, single lines of that text.
/// A damaged or missing archive finds nothing; what the file claims is capped by the file's size and by what the
/// memory stands.
class CPodMgr : public QFile
{
    Q_OBJECT

public:
    explicit CPodMgr(const QString& fileName);

    /// Opens the archive and reads its directory. The argument is not looked at: the base already has the name.
    /// True when the file opened.
    bool readDirectory(const QString& fileName);
    /// Reads every entry whose name ends with `suffix` into `content`, case sensitive: the last one stays.
    bool findBySuffix(const QString& suffix);
    /// The same with the whole name.
    void findExact(const QString& name);
    /// The line that follows the first line of `content` holding `tag`; empty when there is none.
    QString lineAfter(const QString& tag);

    QString magic;
    qint32 headerWord1 = 0;
    QString headerText1;
    qint32 entryCount = 0;
    qint32 headerWord2 = 0;
    qint32 headerWord3 = 0;
    qint32 headerWord4 = 0;
    QString headerText2;
    QString headerText3;
    qint32 directoryOffset = 0;
    qint32 headerWord5 = 0;
    qint32 headerWord6 = 0;
    QList<PodEntry*> entries;
    QList<PodEntry*> unusedEntries; ///< nothing fills it
    QString content;                ///< text of the entry last read

private:
    void readHeader();
    void readRecords();
    void readNames();
    int takeNames(const QByteArray& block, int index);
    void readContent(const PodEntry& entry);

    std::deque<PodEntry> storage; ///< what `entries` points to: a large directory costs few allocations
};
