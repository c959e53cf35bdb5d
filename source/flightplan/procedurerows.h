#pragma once

#include "cfpline.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Stored SID and STAR: rows of SIDSTAR, one a point. They are written in the order of their numbers and read in that
/// of the database.

/// What the column `styp` holds. Readers take any other number for a SID.
enum class ProcedureType
{
    Star = 1,
    Sid = 2
};

/// Positions of the columns in SELECT *.
namespace procedurecolumn {
constexpr int name = 3;
constexpr int number = 4;
constexpr int type = 5;
constexpr int point = 6;
constexpr int pointType = 7;
} // namespace procedurecolumn

/// The number that opens a procedure; the next rows follow in steps of the same size.
constexpr int firstProcedureNumber = 10;

/// Types of a point; a navaid has the type of its own row.
constexpr int airportPointType = 0;
constexpr int userPointType = 4096;

/// A plan that is to be stored.
struct StoredProcedure
{
    QString name;
    QString airportKey;
    ProcedureType type;
};

/// The eleven values of the row of one line, in the order of the columns. Positions are in arc seconds.
QStringList procedureRow(const CFpLine& line, int number, const StoredProcedure& procedure);

/// The statements that store a whole plan, the airport included, to be run in their order: first the one that removes
/// what has the name already, of any airport. Nothing is escaped: an apostrophe in a value spoils its statement.
QStringList procedureStatements(const QList<CFpLinePtr>& lines, const StoredProcedure& procedure);

/// Whether one of these statements, by its place, is not spoiled: what comes out by chance must not run either.
bool isSoundStatement(int place, const QList<CFpLinePtr>& lines, const StoredProcedure& procedure);
