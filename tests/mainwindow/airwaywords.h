#pragma once

#include <QString>

/// The list of the airways through a point.
const QString listTitle = QStringLiteral("Voie aérienne");

inline QString listLabel(const QString& point)
{
    return "Liste des voies passant par le point " + point;
}

/// The box about a point on no airway.
const QString noneTitle = QStringLiteral("Voies aériennes");

inline QString noneText(const QString& point)
{
    return "Le point " + point + " n'appartient à aucune voie aérienne";
}
