#include "rowdeletion.h"

#include "cnavglobalvar.h"
#include "databaseplace.h"
#include "mainwindow.h"
#include "rowsaving.h"

#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

void exportDeletion(const RowDeletion& deletion)
{
    const QString fileName = updateFileName(deletion.label);
    if (writeUpdateFile(deletion.label, deletion.updateLine) == WriteEnd::Whole) {
        QMessageBox::information(nullptr, deletion.exportTitle, deletion.exported.arg(deletion.label, fileName));
    } else if (!deletion.exportFailed.isNull()) {
        QMessageBox::information(nullptr, deletion.exportTitle, deletion.exportFailed.arg(deletion.label));
    }
}

} // namespace

void carryOut(const RowDeletion& deletion, int answer, MainWindow& window)
{
    const bool wanted = answer == QMessageBox::Ok || answer == QMessageBox::Save;
    if (!wanted || !databaseIsInPlace(deletion.connection)) {
        return;
    }
    QSqlQuery query(QSqlDatabase::database(deletion.connection));
    (CNavGlobalVar::instance()->sqlMgr->*deletion.remove)(deletion.key, query);
    window.runMapScript(deletion.script);
    if (answer == QMessageBox::Save) {
        exportDeletion(deletion);
    } else {
        QMessageBox::information(nullptr, deletion.title, deletion.done);
    }
}
