#pragma once

#include "sqlmgr.h"

#include <QString>

class MainWindow;

/// One deletion of rows by their key, with the words of the boxes that tell of it.
struct RowDeletion
{
    using Removal = void (SqlMgr::*)(const QString& key, QSqlQuery& query);

    QString connection;
    Removal remove;
    QString key;
    QString script;     ///< tells the page, once the rows are gone
    QString label;      ///< names the update file
    QString updateLine; ///< all that the file holds
    QString title;
    QString done;
    QString exportTitle;
    QString exported;     ///< %1 the label, %2 the file
    QString exportFailed; ///< %1 the label; null when nothing is told
};

/// Does what the user answered to the question before a deletion: Ok deletes, Save deletes and leaves an update file,
/// anything else does nothing. The rows are gone, whether their file can be written or not.
void carryOut(const RowDeletion& deletion, int answer, MainWindow& window);
