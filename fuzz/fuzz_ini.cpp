// The simulator's ini file, both ways that it is read: the folders of the databases, and the line of the start-up
// situation, which is replaced in the file while every other byte stays.

#include "cglobalvar.h"
#include "fuzzing.h"
#include "startupsituation.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

const char startupKey[] = "startupSituation";
const char startupLine[] = "startupSituation=Saved Simulations/PARIS ORLY.SIT";
const char byteOrderMark[] = "\xEF\xBB\xBF";

class Variables : public CGlobalVar
{
public:
    void saveSettings() override {}
    void loadSettings() override {}
};

Variables& variables()
{
    static auto* const made = new Variables;
    return *made;
}

QString iniPath()
{
    static const QTemporaryDir root;
    if (variables().dirZephan.path() != root.path()) {
        variables().dirZephan.setPath(root.path());
        MUST(QDir(root.path()).mkdir(QStringLiteral("system")));
    }
    return root.filePath(QStringLiteral("system/AeoZephan.ini"));
}

void writeIni(const QByteArray& bytes)
{
    QFile file(iniPath());
    MUST(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
    // Settings that have been read are kept and read again only from a file of another time.
    static QDateTime time = QDateTime::currentDateTime();
    time = time.addMSecs(10);
    MUST(file.setFileTime(time, QFileDevice::FileModificationTime));
}

bool isRooted(const QString& path)
{
    const bool drive = path.size() > 1 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter();
    return drive || !QDir(path).isRelative();
}

void checkFolders()
{
    Variables& folders = variables();
    folders.initDBPath();
    for (const QDir& folder : {folders.dirGEN, folders.dirM3D, folders.dirOBJ, folders.dirTXY, folders.dirWPT,
                               folders.dirRTE, folders.dirOSM}) {
        MUST(isRooted(folder.path()));
    }
    MUST(QFileInfo(folders.dirZephan.path()).isAbsolute());
}

/// The file as it must be afterwards, told byte by byte.
QByteArray rewritten(QByteArray bytes)
{
    bytes.replace('\r', QByteArray());
    QByteArrayList lines = bytes.split('\n');
    if (lines.last().isEmpty()) {
        lines.removeLast(); // the file then ends without a line feed
    }
    for (int i = 0; i < lines.size(); ++i) {
        if (i == 0 && lines.first().startsWith(byteOrderMark)) {
            lines.first().remove(0, 3);
        }
        if (lines.at(i).startsWith(startupKey)) {
            lines[i] = startupLine;
        }
    }
    return lines.join('\n');
}

void checkRewriting(const QByteArray& bytes)
{
    MUST(setStartupSituation(iniPath(), QStringLiteral("PARIS ORLY.SIT")));
    QFile file(iniPath());
    MUST(file.open(QIODevice::ReadOnly));
    MUST(file.readAll() == rewritten(bytes));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startApplication();
    const QByteArray bytes = inputBytes(data, size);
    writeIni(bytes);
    checkFolders();
    checkRewriting(bytes);
    return 0;
}
