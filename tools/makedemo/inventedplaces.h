#pragma once

#include "inventednames.h"

#include <QString>

/// Where an invented row lies.
struct Place
{
    double latSec;   ///< arc seconds
    double lonSec;   ///< arc seconds, 0 up to but not including 1296000
    QString country; ///< two letters
};

/// A place on the mainland of France when `french`, else in one of some thirty other countries.
Place inventedPlace(Dice& dice, bool french);

/// True for `percent` of a hundred successive numbers, evenly spread. Percent is 0 to 100.
bool isFrench(int number, int percent);

/// The tile of a place, as the simulator's grid has it.
int tileOf(double latSec, double lonSec);
