// The commands that change the navigation data: update files, navaids and waypoints edited and deleted from the map.

#include "mainwindow.h"

#include "cdialognav.h"
#include "cdialogwpt.h"
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "datadictionary.h"
#include "mapscript.h"
#include "markertitle.h"
#include "positions.h"
#include "rowdeletion.h"
#include "updateline.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

using Lookup = bool (SqlMgr::*)(const QString& key, bool exact, QSqlQuery& query);

// A table as the map's commands reach it.
struct EditedTable
{
    QString connection;
    Lookup find;
    RowDeletion::Removal remove;
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
    return standsOnRow(table, splitMarkerTitle(command.title.trimmed()), query) ? new Dialog(query, window) : nullptr;
}

// The closed dialog stays with the window, but only the last one does: each holds a picture of itself and its widgets,
// and a day of editing would fill the memory.
template <typename Dialog>
void runDialog(Dialog& dialog, MainWindow& window, QPointer<QDialog>& lastClosed)
{
    if (dialog.exec() == QDialog::Accepted) {
        window.runMapScript(dialog.script);
    }
    dialog.close();
    delete lastClosed;
    lastClosed = &dialog;
}

bool rowIsThere(const EditedTable& table, const MarkerTitle& marker)
{
    QSqlQuery query(QSqlDatabase::database(table.connection));
    return standsOnRow(table, marker, query);
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
    runDialog(*dialog, *this, lastClosedDialog);
}

void MainWindow::sAddWptToDB(const QString& title, double latD, double lonD)
{
    auto* dialog = dialogFor<CDialogWpt>({title, latD, lonD}, waypoints(*settings), this);
    if (dialog == nullptr) {
        QMessageBox::information(this, tr("Modification d'un waypoint"),
                                 tr("Le waypoint %1 n'existe pas dans la base").arg(title));
        return;
    }
    runDialog(*dialog, *this, lastClosedDialog);
}

int MainWindow::askDeleteData(const QString& boxTitle, const QString& boxMsg)
{
    return askBeforeDeletion(boxTitle, boxMsg);
}

void MainWindow::sDelNavFromDB(const QString& title)
{
    if (title.isEmpty()) {
        return;
    }
    const EditedTable table = navaids(*settings);
    const MarkerTitle marker = splitMarkerTitle(title.trimmed());
    if (!rowIsThere(table, marker)) {
        QMessageBox::information(nullptr, tr("Suppression d'un navaid"),
                                 tr("Le point sélectionné n'existe pas dans la base"));
        return;
    }
    const int answer =
        askDeleteData(tr("Suppression d'un navaid"), tr("Voulez vous effacer définitivement %1 ?").arg(title));
    carryOut({table.connection, table.remove, marker.key, mapscript::delNavaid(), marker.label,
              composeDeleteLine(QStringLiteral("GEN"), QStringLiteral("NAV"), fieldsNAV[1].code, marker.key),
              tr("Suppression d'un navaid"), tr("Le navaid %1 a été effacé").arg(title),
              tr("Suppression/export d'un navaid"),
              tr("Le navaid %1 a été effacé et enregistrer pour export \ndans %2"),
              tr("Le navaid %1 a été effacé mais l'export à échoué")},
             answer, *this);
}

// Of the words, the question's heading and the export's title are the navaid's, as this command always had them; it
// tells nothing when the export fails.
void MainWindow::sDelWptFromDB(const QString& title)
{
    if (title.isEmpty()) {
        return;
    }
    const EditedTable table = waypoints(*settings);
    const MarkerTitle marker = splitMarkerTitle(title.trimmed());
    if (!rowIsThere(table, marker)) {
        QMessageBox::information(nullptr, tr("Suppression d'un waypoint"),
                                 tr("Le waypoint sélectionné n'existe pas dans la base"));
        return;
    }
    const int answer =
        askBeforeDeletion(tr("Suppression d'un navaid"), tr("Voulez vous effacer définitivement %1 ?").arg(title));
    carryOut({table.connection, table.remove, marker.key, mapscript::delWaypoint(), marker.label,
              composeDeleteLine(QStringLiteral("WPT"), QStringLiteral("WPT"), fieldsWPT[2].code, marker.key),
              tr("Suppression d'un waypoint"), tr("Le waypoint %1 a été effacé").arg(title),
              tr("Suppression/export d'un navaid"),
              tr("Le waypoint %1 a été effacé et enregistrer pour export \ndans %2"), QString()},
             answer, *this);
}
