#pragma once

#include <QLatin1String>
#include <QString>

#include <array>
#include <vector>

/// A field of an update line that holds a blob as hexadecimal text, two digits a byte.
struct HexadecimalField
{
    int field;   ///< number of the field in the line; its position in the statement is three less
    bool latin1; ///< the reader takes the digits one byte each instead of as a QString
};

/// How a line that writes a row of one table is carried out.
struct UpdateStatement
{
    QLatin1String database; ///< field 0 of the line, the group's name
    QLatin1String table;    ///< field 1 of the line
    QLatin1String text;     ///< prepared as it stands; the values go in by position
    int columns;            ///< placeholders in the text
    int lastField;          ///< a complete line has at least this field
    int lastTextField;      ///< the fields up to this one are bound as text; lastField but for MOD
    std::vector<HexadecimalField> hexadecimal;
};

/// All tables that an update line can write, in the order in which a line's names are looked up.
///
/// ATSROUTE and SIDSTAR bind one value more than their statements have placeholders, as the simulator's tools agree:
/// the driver refuses such a row.
const std::array<UpdateStatement, 19>& updateStatements();

/// The row of that table, both names case sensitive. Null when there is none.
const UpdateStatement* findUpdateStatement(const QString& database, const QString& table);
