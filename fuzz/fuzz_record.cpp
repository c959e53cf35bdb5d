// The shared record, as many ticks as the input holds: any bytes of the simulator give scripts of the one form.

#include "aeozephannavrecord.h"
#include "fuzzing.h"
#include "tracescript.h"

#include <QRegularExpression>

#include <cmath>
#include <cstring>

namespace {

constexpr std::size_t recordSize = sizeof(AeoZephanNavRecord);

/// Whether the text is the number, within what five decimals (degrees) or six digits (heading) tell.
bool tells(const QString& text, double value, double precision)
{
    if (std::isnan(value)) {
        return text == QLatin1String("nan");
    }
    if (std::isinf(value)) {
        return text == QLatin1String(value > 0.0 ? "inf" : "-inf");
    }
    const double told = text.toDouble();
    return told == value || std::fabs(told - value) <= precision + std::fabs(value) * 1e-15; // and a double's own
}

void checkNumbers(const QRegularExpressionMatch& match, const AeoZephanNavRecord& record)
{
    const double halfDigit = 0.0000051;
    MUST(tells(match.captured(QStringLiteral("lat")), record.latS / 3600.0, halfDigit));
    MUST(tells(match.captured(QStringLiteral("lon")), record.lonS / 3600.0, halfDigit));
    MUST(tells(match.captured(QStringLiteral("heading")), record.heading, std::fabs(record.heading) * 0.0000051));
}

const QString degrees = QStringLiteral("-?(?:\\d+\\.\\d{5}|inf|nan)");
const QString heading = QStringLiteral("-?(?:\\d+(?:\\.\\d+)?(?:e[+-]\\d+)?|inf|nan)");

/// A pattern with the places filled in, matched from end to end.
QRegularExpression script(const QString& pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern.arg(degrees, heading)));
}

void checkTick(const AeoZephanNavRecord& record)
{
    static const QRegularExpression start = script(
        QStringLiteral("addAcftMrkr\\(new google\\.maps\\.LatLng\\((?<lat>%1),(?<lon>%1)\\),\"\",(?<heading>%2)\\);"));
    static const QRegularExpression move = script(
        QStringLiteral("setAcftMrkr\\(new google\\.maps\\.LatLng\\((?<lat>%1),(?<lon>%1)\\),(?<heading>%2)\\);"));
    static const QRegularExpression centre =
        script(QStringLiteral(";map\\.setCenter\\(new google\\.maps\\.LatLng\\((?<lat>%1),(?<lon>%1)\\)\\);%2?"));

    const QRegularExpressionMatch started = start.match(tracescript::start(record));
    MUST(started.hasMatch());
    checkNumbers(started, record);
    const QString moveScript = tracescript::move(record, false);
    const QRegularExpressionMatch moved = move.match(moveScript);
    MUST(moved.hasMatch());
    checkNumbers(moved, record);
    const QString followScript = tracescript::move(record, true);
    MUST(followScript.startsWith(moveScript));
    MUST(centre.match(followScript.mid(moveScript.size())).hasMatch());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (std::size_t at = 0; at + recordSize <= size; at += recordSize) {
        AeoZephanNavRecord record;
        std::memcpy(&record, data + at, recordSize);
        checkTick(record);
    }
    return 0;
}
