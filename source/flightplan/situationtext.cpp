#include "situationtext.h"

#include "positions.h"

namespace {

QString numbers(double first, double second, double third, int secondDecimals)
{
    return QStringLiteral("%1,%2,%3").arg(first, 0, 'f', 1).arg(second, 0, 'f', secondDecimals).arg(third, 0, 'f', 1);
}

} // namespace

QStringList situationText(const QString& iden, const CFpLine& start)
{
    const double heading = start.heading * radiansPerDegree;
    return {
        QStringLiteral("<bgno> ========== %1 =====\n").arg(iden),
        QStringLiteral("\t<wobj> ---- world object type ----\n\t%1\n").arg(QLatin1String("plan")),
        QStringLiteral("\t<bgno> ========== BEGIN OBJECT ==========\n"),
        QStringLiteral("\t\t<geop> ---- geo position lat lon elev ----\n\t\t%1\n\t\t%2\n\t\t%3\n")
            .arg(latitudeText(start.latS, true), longitudeText(start.lonS, true), QString::number(start.elev)),
        // Always this aircraft, whatever the dock shows.
        QStringLiteral("\t\t<_NFO> ---- Vehicle Info Files ----\n\t\t%1\n").arg(QLatin1String("cessna172.nfo")),
        QStringLiteral("\t\t<user> ---- Default user vehicle ----\n"),
        QStringLiteral("\t\t<iang> ---- Inertial angular position ----\n\t\t%1\n").arg(numbers(0.0, heading, 0.0, 2)),
        QStringLiteral("\t\t<bvel> ----\n\t\t%1\n").arg(numbers(0.0, 0.0, 0.0, 1)),
        QStringLiteral("\t\t<bang>\n\t\t%1\n").arg(numbers(0.0, 0.0, 0.0, 1)),
        QStringLiteral("\t\t<vmod> ---- view mode ----\n\t\t%1\n").arg(QLatin1String("spot")),
        QStringLiteral("\t<endo> ========== END OBJECT ============\n"),
        QStringLiteral("<endo> ========== END OBJECT ============\n"),
    };
}

QString situationFileName(const CFpLine& airport)
{
    return QStringLiteral("%1.sit").arg(airport.name).toUpper();
}
