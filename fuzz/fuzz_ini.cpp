// The simulator's ini file, both ways that it is read: the folders of the databases, and the line of the start-up
// situation, which is replaced in the file while every other byte stays.

#include "cglobalvar.h"
#include "fuzzing.h"
#include "startupsituation.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstring>
#include <utility>

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

/// A file of single bytes as it must be afterwards.
QByteArray rewrittenBytes(QByteArray bytes)
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

/// A file of two bytes a character, which the zero byte of its first one tells, or its mark.
bool isWide(const QByteArray& bytes)
{
    const QByteArray start = bytes.left(2);
    return start.size() == 2 && (start == "\xFF\xFE" || start == "\xFE\xFF" || start.contains('\0'));
}

bool isLittleEndian(const QByteArray& bytes)
{
    return bytes.startsWith("\xFF\xFE") || bytes.at(1) == '\0';
}

QByteArray swapped(QByteArray bytes)
{
    for (int i = 0; i + 1 < bytes.size(); i += 2) {
        std::swap(bytes.data()[i], bytes.data()[i + 1]);
    }
    return bytes;
}

/// The same for a file of two bytes a character, given and returned with the low byte first.
QByteArray rewrittenPairs(const QByteArray& bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    std::memcpy(text.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.last().isEmpty()) {
        lines.removeLast();
    } else if (lines.last().endsWith(QLatin1Char('\r'))) {
        lines.last().chop(1); // half of what ends a line, and nothing behind it
    }
    for (QString& line : lines) {
        const QString mark = line.startsWith(QChar(QChar::ByteOrderMark)) ? line.left(1) : QString();
        if (line.midRef(mark.size()).startsWith(QLatin1String(startupKey))) {
            line = mark + QLatin1String(startupLine);
        }
    }
    const QString joined = lines.join(QLatin1Char('\n'));
    return {reinterpret_cast<const char*>(joined.constData()), 2 * joined.size()};
}

QByteArray rewritten(const QByteArray& bytes)
{
    if (!isWide(bytes)) {
        return rewrittenBytes(bytes);
    }
    return isLittleEndian(bytes) ? rewrittenPairs(bytes) : swapped(rewrittenPairs(swapped(bytes)));
}

QByteArray iniBytes()
{
    QFile file(iniPath());
    MUST(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void checkRewriting(const QByteArray& bytes)
{
    const bool done = setStartupSituation(iniPath(), QStringLiteral("PARIS ORLY.SIT"));
    const bool halfCharacter = isWide(bytes) && bytes.size() % 2 != 0;
    MUST(done != halfCharacter);
    MUST(iniBytes() == (done ? rewritten(bytes) : bytes));
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
