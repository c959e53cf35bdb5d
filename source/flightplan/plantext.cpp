#include "plantext.h"

#include "mapscript.h"

namespace {

// The literals are the simulator's format to the character, the minus in "mark-" and the uneven dashes included.

QStringList headPieces(const QString& from, const QString& to, int version, int ceiling)
{
    return {
        QStringLiteral("<bgno> == Generated with zephan Trajector ==\n"),
        QStringLiteral("\t<form> ---- Format Type -----------------\n\twpno=%1, format=%2\n")
            .arg(1)
            .arg(QLatin1String("FM01")),
        QStringLiteral("\t<desc> ========== Description ===========\n"),
        QStringLiteral("\tFlight plan from %1 to %2\n").arg(from, to),
        QStringLiteral("\t<vers> ---------- Version number --------\n\t%1\n").arg(version),
        QStringLiteral("\t<ceil> -----------Average ceil ----------\n\t%1\n").arg(ceiling),
    };
}

QStringList linePieces(const CFpLine& line)
{
    return {
        QStringLiteral("\t<wpnt> --------- Waypoint ---------------\n"),
        // The usage, not the type word: a waypoint of the database comes back as a user point.
        QStringLiteral("\t%1\n").arg(line.usage),
        QStringLiteral("\t<bgno> ========== BEGIN OBJECT ==========\n"),
        QStringLiteral("\t\t<name> ---------- Waypoint name ---------\n\t\t%1\n").arg(line.name),
        QStringLiteral("\t\t<iden> ---------- Waypoint identity -----\n\t\t%1\n").arg(line.iden),
        QStringLiteral("\t\t<llps> ---------- Lat/lon,alt position --\n\t\t%1,%2,%3\n")
            .arg(line.latS, 0, 'f', 3)
            .arg(line.lonS, 0, 'f', 3)
            .arg(line.elev),
        QStringLiteral("\t\t<dbky> ---------- Database key ----------\n\t\t%1\n").arg(line.dbKey),
        QStringLiteral("\t\t<user> ---------- Waypoint usage --------\n\t\t%1\n").arg(line.usage),
        QStringLiteral("\t\t<altd> --- Altitude (feet) at WPT -------\n\t\t%1\n").arg(line.altd),
        QStringLiteral("\t\t<tkof> --- Take off runway --------------\n\t\t%1\n").arg(line.tkof),
        QStringLiteral("\t\t<land> --- Landing runway ---------------\n\t\t%1\n").arg(line.land),
        QStringLiteral("\t\t<mark> --- Terminated mark- -------------\n\t\t%1\n").arg(line.mark),
        QStringLiteral("\t<endo> ========== END OBJECT ============\n"),
    };
}

} // namespace

QStringList planText(const QList<CFpLinePtr>& lines, int version, int ceiling)
{
    if (lines.isEmpty()) {
        return {};
    }
    QStringList pieces = headPieces(lines.first()->iden, lines.last()->iden, version, ceiling);
    for (const CFpLinePtr& line : lines) {
        pieces += linePieces(*line);
    }
    pieces += QStringLiteral("<endo> ========== END OBJECT ============\n");
    return pieces;
}

QString planFileName(const CFpLine& first, const CFpLine& last)
{
    return QStringLiteral("%1_%2.fpl").arg(first.iden, last.iden).toUpper();
}

QString routeScript(const QList<CFpLinePtr>& lines)
{
    QStringList scripts{mapscript::clearFp()};
    for (const CFpLinePtr& line : lines) {
        scripts += mapscript::addPointToFp(mapscript::storedPlace(line->latS, line->lonS), line->name);
    }
    scripts += mapscript::pushFp();
    return scripts.join(QLatin1Char(';'));
}
