// The commands that change the navigation data: update files, navaids and waypoints edited and deleted from the map.

#include "mainwindow.h"

#include "cdialognav.h"
#include "cdialogwpt.h"
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "datadictionary.h"
#include "mapscript.h"
#include "positions.h"
#include "rowsaving.h"
#include "textfile.h"
#include "updateline.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

// A marker's title: a label, "-", the key of its row. A "-" in the label itself shifts the key away, and then there is
// no such row.
struct MarkerTitle
{
    explicit MarkerTitle(const QString& title)
    {
        const QStringList parts = title.trimmed().split(QLatin1Char('-'), Qt::KeepEmptyParts);
        hasKey = parts.size() > 1;
        label = parts.value(0);
        key = parts.value(1);
    }

    bool hasKey; ///< a key may be empty: that of a row without a name
    QString label;
    QString key;
};

using Lookup = bool (SqlMgr::*)(const QString& key, bool exact, QSqlQuery& query);
using Removal = void (SqlMgr::*)(const QString& key, QSqlQuery& query);

// A table as the map's commands reach it.
struct EditedTable
{
    QString connection;
    Lookup find;
    Removal remove;
};

EditedTable navaids(const CNavGlobalVar& settings)
{
    return {settings.dbGEN, &SqlMgr::getNAV, &SqlMgr::delNAV};
}

EditedTable waypoints(const CNavGlobalVar& settings)
{
    return {settings.dbWPT, &SqlMgr::getWPT, &SqlMgr::delWPT};
}

// A title without a key has no row.
bool standsOnRow(const EditedTable& table, const MarkerTitle& marker, QSqlQuery& query)
{
    SqlMgr* sqlMgr = CNavGlobalVar::instance()->sqlMgr;
    return marker.hasKey && (sqlMgr->*table.find)(marker.key, true, query) && query.first();
}

// What a command of the map is about: a marker, or with an empty title a place on the empty map in degrees.
struct EditCommand
{
    QString title;
    double latD;
    double lonD;
};

// The dialog for a new row at the place, or for the marker's row. Null when there is no such row.
template <typename Dialog>
Dialog* dialogFor(const EditCommand& command, const EditedTable& table, MainWindow* window)
{
    if (command.title.isEmpty()) {
        return new Dialog(command.latD * arcSecondsPerDegree, wrapPageArcSeconds(command.lonD * arcSecondsPerDegree),
                          window);
    }
    // Gone before the dialog opens: a query that stands on a row keeps the table locked for the simulator.
    QSqlQuery query(QSqlDatabase::database(table.connection));
    return standsOnRow(table, MarkerTitle(command.title), query) ? new Dialog(query, window) : nullptr;
}

// The closed dialog stays with the window, which ends it.
template <typename Dialog>
void runDialog(Dialog& dialog, MainWindow& window)
{
    if (dialog.exec() == QDialog::Accepted) {
        window.runMapScript(dialog.script);
    }
    dialog.close();
}

// One deletion, with the words of its boxes.
struct RowDeletion
{
    EditedTable table;
    MarkerTitle marker;
    QString markerScript;
    QString updateLine;
    QString title;
    QString notFound;
    QString done;
    QString exportTitle;
    QString exported;     ///< %1 the label, %2 the file
    QString exportFailed; ///< %1 the label; null when nothing is told
};

bool rowIsThere(const RowDeletion& deletion)
{
    QSqlQuery query(QSqlDatabase::database(deletion.table.connection));
    if (standsOnRow(deletion.table, deletion.marker, query)) {
        return true;
    }
    QMessageBox::information(nullptr, deletion.title, deletion.notFound);
    return false;
}

int askBeforeDeletion(const QString& heading, const QString& question)
{
    QMessageBox box;
    box.setText(heading);
    box.setInformativeText(question);
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Save | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Save);
    box.setIcon(QMessageBox::Question);
    box.button(QMessageBox::Ok)->setText(MainWindow::tr("Effacer"));
    box.button(QMessageBox::Save)->setText(MainWindow::tr("Effacer\n& Exporter"));
    box.button(QMessageBox::Cancel)->setText(MainWindow::tr("Annuler"));
    return box.exec();
}

// The row is gone already, whether its file can be written or not.
void exportDeletion(const RowDeletion& deletion)
{
    const QString fileName = updateFileName(deletion.marker.label);
    if (writeTextFile(fileName, {deletion.updateLine})) {
        QMessageBox::information(nullptr, deletion.exportTitle, deletion.exported.arg(deletion.marker.label, fileName));
    } else if (!deletion.exportFailed.isNull()) {
        QMessageBox::information(nullptr, deletion.exportTitle, deletion.exportFailed.arg(deletion.marker.label));
    }
}

void carryOut(const RowDeletion& deletion, int answer, MainWindow& window)
{
    if (answer != QMessageBox::Ok && answer != QMessageBox::Save) {
        return;
    }
    QSqlQuery query(QSqlDatabase::database(deletion.table.connection));
    (CNavGlobalVar::instance()->sqlMgr->*deletion.table.remove)(deletion.marker.key, query);
    window.runMapScript(deletion.markerScript);
    if (answer == QMessageBox::Save) {
        exportDeletion(deletion);
    } else {
        QMessageBox::information(nullptr, deletion.title, deletion.done);
    }
}

} // namespace

void MainWindow::on_actImport_triggered()
{
    auto* exchange = new CIODataBase(this); // stays for the rest of the run
    exchange->importFiles(settings);
}

void MainWindow::sAddNavToDB(const QString& title, double latD, double lonD)
{
    auto* dialog = dialogFor<CDialogNav>({title, latD, lonD}, navaids(*settings), this);
    if (dialog == nullptr) {
        QMessageBox::information(this, tr("Modification d'un navaid"),
                                 tr("Le navaid %1 n'existe pas dans la base").arg(title));
        return;
    }
    runDialog(*dialog, *this);
}

void MainWindow::sAddWptToDB(const QString& title, double latD, double lonD)
{
    auto* dialog = dialogFor<CDialogWpt>({title, latD, lonD}, waypoints(*settings), this);
    if (dialog == nullptr) {
        QMessageBox::information(this, tr("Modification d'un waypoint"),
                                 tr("Le waypoint %1 n'existe pas dans la base").arg(title));
        return;
    }
    runDialog(*dialog, *this);
}

int MainWindow::askDeleteData(const QString& boxTitle, const QString& boxMsg)
{
    return askBeforeDeletion(boxTitle, boxMsg);
}

void MainWindow::sDelNavFromDB(const QString& title)
{
    const MarkerTitle marker(title);
    const RowDeletion deletion{
        navaids(*settings),
        marker,
        mapscript::delNavaid(),
        composeDeleteLine(QStringLiteral("GEN"), QStringLiteral("NAV"), fieldsNAV[1].code, marker.key),
        tr("Suppression d'un navaid"),
        tr("Le point sélectionné n'existe pas dans la base"),
        tr("Le navaid %1 a été effacé").arg(title),
        tr("Suppression/export d'un navaid"),
        tr("Le navaid %1 a été effacé et enregistrer pour export \ndans %2"),
        tr("Le navaid %1 a été effacé mais l'export à échoué")};
    if (!title.isEmpty() && rowIsThere(deletion)) {
        const QString question = tr("Voulez vous effacer définitivement %1 ?").arg(title);
        carryOut(deletion, askDeleteData(tr("Suppression d'un navaid"), question), *this);
    }
}

// Of the words, the question's heading and the export's title are the navaid's, as this command always had them; it
// tells nothing when the export fails.
void MainWindow::sDelWptFromDB(const QString& title)
{
    const MarkerTitle marker(title);
    const RowDeletion deletion{
        waypoints(*settings),
        marker,
        mapscript::delWaypoint(),
        composeDeleteLine(QStringLiteral("WPT"), QStringLiteral("WPT"), fieldsWPT[2].code, marker.key),
        tr("Suppression d'un waypoint"),
        tr("Le waypoint sélectionné n'existe pas dans la base"),
        tr("Le waypoint %1 a été effacé").arg(title),
        tr("Suppression/export d'un navaid"),
        tr("Le waypoint %1 a été effacé et enregistrer pour export \ndans %2"),
        QString()};
    if (!title.isEmpty() && rowIsThere(deletion)) {
        const QString question = tr("Voulez vous effacer définitivement %1 ?").arg(title);
        carryOut(deletion, askBeforeDeletion(tr("Suppression d'un navaid"), question), *this);
    }
}
