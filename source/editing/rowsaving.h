#pragma once

#include "wholefile.h"

#include <QString>
#include <QStringList>

class QWidget;

/// A row that leaves a form, with the words of the boxes that tell so.
struct SavedRow
{
    QString connection;
    QString database; ///< as update lines name it
    QString table;
    QStringList values; ///< of all columns, in their order
    QString name;       ///< the row's name, which the update file takes over
    QString title;
    QString exportTitle;
    QString storedText; ///< the message that the row is in its table
};

/// Puts the row into its table and tells so, or shows the error of the statement. The values go in as they are: an
/// apostrophe in a name spoils the statement.
void storeRow(const SavedRow& row, QWidget* parent);

/// Writes the row's update file, and tells that it was written also when it could not be opened.
void exportRow(const SavedRow& row, QWidget* parent);

/// The update file of one edit or deletion, in the folder "Data" beside the program, as it is shown to the user: with
/// backslashes. The folder has to be there; there is one file a label, and the last one written stays.
QString updateFileName(const QString& label);

/// Writes that file, one operation a line of the text. A label that would lead out of the folder is not written.
WriteEnd writeUpdateFile(const QString& label, const QString& lines);
