// The bytes of a POD archive: whatever they claim, what is read lies inside the file.

#include "aircraftarchives.h"
#include "cpodmgr.h"
#include "fuzzing.h"

#include <algorithm>

namespace {

constexpr int recordSize = 20;
constexpr int entriesTried = 16; // each reading of an entry walks the whole directory

/// The text that an entry must give: as much of its bytes as the file has.
QString textInside(const QByteArray& archive, const PodEntry& entry)
{
    if (entry.size <= 0 || entry.offset < 0 || entry.offset >= archive.size()) {
        return {};
    }
    return utf8Text(archive.mid(entry.offset, std::min(entry.size, archive.size() - entry.offset)));
}

const PodEntry* lastNamed(const QList<PodEntry*>& entries, const QString& name)
{
    const PodEntry* found = nullptr;
    for (const PodEntry* entry : entries) {
        found = entry->name == name ? entry : found;
    }
    return found;
}

void checkDirectory(const CPodMgr& pod, const QByteArray& archive)
{
    MUST(pod.entries.size() <= archive.size() / recordSize);
    MUST(pod.entries.isEmpty() || pod.entries.size() <= pod.entryCount);
    qint64 nameBytes = 0;
    for (const PodEntry* entry : pod.entries) {
        nameBytes += entry->name.size();
    }
    MUST(nameBytes <= archive.size());
}

void checkEntries(CPodMgr& pod, const QByteArray& archive)
{
    for (const PodEntry* entry : pod.entries.mid(0, entriesTried)) {
        pod.findExact(entry->name);
        MUST(pod.content == textInside(archive, *lastNamed(pod.entries, entry->name)));
        const QString suffix = entry->name.right(3);
        MUST(pod.findBySuffix(suffix));
    }
    pod.content = QStringLiteral("kept");
    MUST(!pod.findBySuffix(QStringLiteral("no name ends \n like this")));
    MUST(pod.content == QLatin1String("kept"));
}

void checkLines(CPodMgr& pod)
{
    for (const char* tag : {"<make>", "<acid>", "<CEIL>", ""}) {
        const QString line = pod.lineAfter(QLatin1String(tag));
        MUST(!line.contains(QLatin1Char('\n')) && !line.contains(QLatin1Char('\r')));
        MUST(pod.content.contains(line));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startApplication();
    const QByteArray archive = inputBytes(data, size);
    const QString path = scratchFile(QStringLiteral("aircraft.pod"), archive);
    CPodMgr pod(path);
    checkDirectory(pod, archive);
    checkEntries(pod, archive);
    if (pod.findBySuffix(QStringLiteral("SVH"))) {
        checkLines(pod);
    }
    const CAircraftData aircraft = readAircraftArchive(path);
    MUST(aircraft.make == aircraft.make.trimmed() && aircraft.acid == aircraft.acid.trimmed());
    return 0;
}
