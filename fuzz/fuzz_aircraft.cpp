// The NFO and SVH texts of an aircraft, divided by the input's first zero byte, in an archive that the project's own
// writer makes: the archive gives them back byte by byte, and the numbers are those of the lines below the tags.

#include "aircraftarchives.h"
#include "cpodmgr.h"
#include "fuzzing.h"
#include "podwriter.h"

#include <QStringList>

namespace {

/// The value below a tag, found line by line.
QString valueBelow(const QString& text, const QString& tag)
{
    QString plain = text;
    plain.remove(QLatin1Char('\r'));
    const QStringList lines = plain.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).contains(tag)) {
            return lines.value(i + 1).trimmed();
        }
    }
    return {};
}

int numberBelow(const QString& text, const char* tag)
{
    return valueBelow(text, QLatin1String(tag)).toInt();
}

void checkAircraft(const QString& path, const QString& nfo, const QString& svh)
{
    const CAircraftData aircraft = readAircraftArchive(path);
    MUST(aircraft.make == valueBelow(nfo, QStringLiteral("<make>")));
    MUST(aircraft.acid == valueBelow(svh, QStringLiteral("<acid>")));
    MUST(aircraft.speedMax == numberBelow(svh, "<048a>"));
    MUST(aircraft.speedCruise == numberBelow(svh, "<043a>"));
    MUST(aircraft.speedVert == numberBelow(svh, "<045a>"));
    MUST(aircraft.speedApp == numberBelow(svh, "<044a>"));
    MUST(aircraft.ceiling == numberBelow(svh, "<CEIL>"));
    MUST(aircraft.altCruise == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startApplication();
    const QByteArray texts = inputBytes(data, size);
    const int zero = texts.indexOf('\0');
    const QByteArray nfo = zero < 0 ? texts : texts.left(zero);
    const QByteArray svh = zero < 0 ? QByteArray() : texts.mid(zero + 1);

    QVector<PodContent> entries{{"A/A.NFO", nfo}};
    if (zero >= 0) {
        entries.append({"A/A.SVH", svh});
    }
    const QString path = scratchFile(QStringLiteral("aircraft.pod"), podBytes(entries));
    CPodMgr pod(path);
    MUST(pod.entries.size() == entries.size());
    MUST(pod.findBySuffix(QStringLiteral("NFO")) && pod.content == utf8Text(nfo));
    MUST(pod.findBySuffix(QStringLiteral("SVH")) == (zero >= 0));
    MUST(zero < 0 || pod.content == utf8Text(svh));
    // Without an SVH entry its tags are looked for in the NFO text.
    checkAircraft(path, utf8Text(nfo), utf8Text(zero < 0 ? nfo : svh));
    return 0;
}
