#pragma once

#include <QString>

/// The HTML texts that the markers carry for their info windows. Positions are the row's arc seconds as stored.
namespace markertext {

QString airport(const QString& iden, const QString& name, double latSec, double lonSec);
/// The frequency as the database has it, in Mhz.
QString vor(const QString& iden, const QString& name, double frequency, double latSec, double lonSec);
/// The frequency as the database has it, in Khz.
QString ndb(const QString& iden, const QString& name, double frequency, double latSec, double lonSec);
/// `usage` is the number of the row in decimal, or the word that an edit chose.
QString waypoint(const QString& iden, const QString& name, const QString& usage, double latSec, double lonSec);

} // namespace markertext
