#pragma once

#include <QString>

/// The record of the databases' schema, and the version of the suite.
///
/// Rows are read by position: the number of a column is its place in "SELECT *" and in the values of a "REPLACE".
/// The simulator's tools agree on this record as it stands, its slips included.

/// Shown in the window title and in the about box.
extern const QString version;

/// Not consulted at run time.
extern const QString tableNames[10];

/// One column of a table.
struct ColumnDef
{
    QString code;        ///< the column's name in SQL
    char type;           ///< 'I' integer, 'C' text, 'D' double, 'F' float, 'B' blob
    int width;           ///< of a text column in characters, else 0 as a rule
    QString description; ///< what the column holds
    int number;          ///< position of the column in the table, from 0
};

extern const ColumnDef fieldsAPT[50];
extern const ColumnDef fieldsRWY[71];
extern const ColumnDef fieldsNAV[17];
extern const ColumnDef fieldsCOM[12];
extern const ColumnDef fieldsILS[14];
extern const ColumnDef fieldsWPT[16];
extern const ColumnDef fieldsSIDSTAR[11];
extern const ColumnDef fieldsBDRY[21];
extern const ColumnDef fieldsATSROUTE[26];
extern const ColumnDef fieldsCTY[2];
extern const ColumnDef fieldsSTATE[4];
extern const ColumnDef fieldsLight[8];
extern const ColumnDef fieldsMOD[13];
extern const ColumnDef fieldsTEXTURE[4];
extern const ColumnDef fieldsPave[5];
