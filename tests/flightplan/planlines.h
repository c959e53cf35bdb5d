#pragma once

#include "cfpline.h"

#include <QList>
#include <QString>

/// A user point at a position in arc seconds, named and identified by `name`.
inline CFpLinePtr pointAt(double latS, double lonS, const QString& name = QStringLiteral("WPT001"), int speed = 120)
{
    CFpLinePtr line(new CFpLine);
    line->latS = latS;
    line->lonS = lonS;
    line->name = name;
    line->iden = name;
    line->usage = QStringLiteral("uswp");
    line->speed = speed;
    return line;
}

/// The airport and the navaid of the plan file that the texts of several tests show.
inline QList<CFpLinePtr> airportAndNavaid()
{
    CFpLinePtr airport(new CFpLine);
    airport->fpType = QStringLiteral("airp");
    airport->usage = QStringLiteral("airp");
    airport->name = QStringLiteral("San Francisco Intl");
    airport->iden = QStringLiteral("KSFO");
    airport->dbKey = QStringLiteral("US_KSFO");
    airport->latS = 135720.5;
    airport->lonS = -440912.25;
    airport->elev = 13;
    airport->altd = 13;
    airport->tkof.clear();
    airport->land.clear();
    CFpLinePtr navaid(new CFpLine);
    navaid->fpType = QStringLiteral("snav");
    navaid->usage = QStringLiteral("snav");
    navaid->name = QStringLiteral("OAKLAND");
    navaid->iden = QStringLiteral("OAK");
    navaid->dbKey = QStringLiteral("NAV_OAK");
    navaid->latS = 135800.0;
    navaid->lonS = -440000.0;
    navaid->elev = 10;
    navaid->navType = 8;
    navaid->freq = 116.8;
    return {airport, navaid};
}

/// The plan file of these two, saved for the first time with an aircraft of 12000 feet ceiling.
const char* const airportAndNavaidText = "<bgno> == Generated with zephan Trajector ==\n"
                                         "\t<form> ---- Format Type -----------------\n"
                                         "\twpno=1, format=FM01\n"
                                         "\t<desc> ========== Description ===========\n"
                                         "\tFlight plan from KSFO to OAK\n"
                                         "\t<vers> ---------- Version number --------\n"
                                         "\t1\n"
                                         "\t<ceil> -----------Average ceil ----------\n"
                                         "\t12000\n"
                                         "\t<wpnt> --------- Waypoint ---------------\n"
                                         "\tairp\n"
                                         "\t<bgno> ========== BEGIN OBJECT ==========\n"
                                         "\t\t<name> ---------- Waypoint name ---------\n"
                                         "\t\tSan Francisco Intl\n"
                                         "\t\t<iden> ---------- Waypoint identity -----\n"
                                         "\t\tKSFO\n"
                                         "\t\t<llps> ---------- Lat/lon,alt position --\n"
                                         "\t\t135720.500,-440912.250,13\n"
                                         "\t\t<dbky> ---------- Database key ----------\n"
                                         "\t\tUS_KSFO\n"
                                         "\t\t<user> ---------- Waypoint usage --------\n"
                                         "\t\tairp\n"
                                         "\t\t<altd> --- Altitude (feet) at WPT -------\n"
                                         "\t\t13\n"
                                         "\t\t<tkof> --- Take off runway --------------\n"
                                         "\t\t\n"
                                         "\t\t<land> --- Landing runway ---------------\n"
                                         "\t\t\n"
                                         "\t\t<mark> --- Terminated mark- -------------\n"
                                         "\t\t\n"
                                         "\t<endo> ========== END OBJECT ============\n"
                                         "\t<wpnt> --------- Waypoint ---------------\n"
                                         "\tsnav\n"
                                         "\t<bgno> ========== BEGIN OBJECT ==========\n"
                                         "\t\t<name> ---------- Waypoint name ---------\n"
                                         "\t\tOAKLAND\n"
                                         "\t\t<iden> ---------- Waypoint identity -----\n"
                                         "\t\tOAK\n"
                                         "\t\t<llps> ---------- Lat/lon,alt position --\n"
                                         "\t\t135800.000,-440000.000,10\n"
                                         "\t\t<dbky> ---------- Database key ----------\n"
                                         "\t\tNAV_OAK\n"
                                         "\t\t<user> ---------- Waypoint usage --------\n"
                                         "\t\tsnav\n"
                                         "\t\t<altd> --- Altitude (feet) at WPT -------\n"
                                         "\t\t0\n"
                                         "\t\t<tkof> --- Take off runway --------------\n"
                                         "\t\tNONE\n"
                                         "\t\t<land> --- Landing runway ---------------\n"
                                         "\t\tNONE\n"
                                         "\t\t<mark> --- Terminated mark- -------------\n"
                                         "\t\t\n"
                                         "\t<endo> ========== END OBJECT ============\n"
                                         "<endo> ========== END OBJECT ============\n";
