// Stored SID and STAR: made out of a plan, listed in two trees, drawn beside the plan, copied into it, deleted.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "cflightplan.h"
#include "cfpline.h"
#include "cnavglobalvar.h"
#include "databaseplace.h"
#include "databasewait.h"
#include "datadictionary.h"
#include "mapscript.h"
#include "positions.h"
#include "procedurerows.h"
#include "resourceicon.h"
#include "rowdeletion.h"
#include "updateline.h"

#include <QIcon>
#include <QInputDialog>
#include <QMessageBox>
#include <QPersistentModelIndex>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

// The reader of update files knows this database as "RTE" and stops at such a line; both stay as they are.
QString deletionLine(const QStringList& key)
{
    return joinUpdateLine(QStringList{QStringLiteral("ROUTE"), QStringLiteral("SIDSTAR"), QStringLiteral("-")} + key);
}

// By the type code of the point; any other has no icon.
QIcon pointIcon(int typeCode)
{
    struct TypeIcon
    {
        int typeCode;
        const char* path;
    };
    static const TypeIcon icons[] = {
        {8, ":/icon/images/Img03.bmp"},  {airportPointType, ":/icon/images/Img08.bmp"}, {1, ":/icon/images/Img05.bmp"},
        {17, ":/icon/images/Img05.bmp"}, {userPointType, ":/icon/images/Img35.bmp"},
    };
    for (const TypeIcon& entry : icons) {
        if (entry.typeCode == typeCode) {
            return resourceIcon(QLatin1String(entry.path));
        }
    }
    return QIcon();
}

QTreeWidgetItem* pointItem(const QSqlQuery& row)
{
    auto* item = new QTreeWidgetItem;
    item->setIcon(0, pointIcon(row.value(procedurecolumn::pointType).toInt()));
    item->setText(1, row.value(procedurecolumn::point).toString());
    item->setForeground(1, Qt::blue);
    return item;
}

// The procedure that an item is, or is a point of.
QTreeWidgetItem* procedureOf(QTreeWidgetItem* item)
{
    while (item->parent() != nullptr) {
        item = item->parent();
    }
    return item;
}

} // namespace

// What tells a SID from a STAR. The texts wait for their translation.
struct MainWindow::ProcedureKind
{
    ProcedureType type;
    QTreeWidget* Ui::MainWindow::*tree;
    bool departs; ///< the airport is the first point, else the last one
    const char* creationTitle;
    const char* noAirport;
    const char* nameTitle;
    const char* nameLabel;
    const char* storedTitle;
    const char* stored; ///< %1 the name
};

const MainWindow::ProcedureKind MainWindow::sidKind{
    ProcedureType::Sid,
    &Ui::MainWindow::treeWSid,
    true,
    QT_TRANSLATE_NOOP("MainWindow", "Création d'un SID"),
    QT_TRANSLATE_NOOP("MainWindow", "Le nouveau SID doit commencé par un aéroport"),
    QT_TRANSLATE_NOOP("MainWindow", "Nouveau SID"),
    QT_TRANSLATE_NOOP("MainWindow", "Nom du SID"),
    QT_TRANSLATE_NOOP("MainWindow", "Enregistrement SID"),
    QT_TRANSLATE_NOOP("MainWindow", "Le SID %1 a été enregistré"),
};

const MainWindow::ProcedureKind MainWindow::starKind{
    ProcedureType::Star,
    &Ui::MainWindow::treeWStar,
    false,
    QT_TRANSLATE_NOOP("MainWindow", "Création d'un STAR"),
    QT_TRANSLATE_NOOP("MainWindow", "Le nouveau STAR doit finir par un aéroport"),
    QT_TRANSLATE_NOOP("MainWindow", "Nouveau STAR"),
    QT_TRANSLATE_NOOP("MainWindow", "Nom du STAR"),
    QT_TRANSLATE_NOOP("MainWindow", "Enregistrement STAR"),
    QT_TRANSLATE_NOOP("MainWindow", "Le STAR %1 a été enregistré"),
};

// The line that the procedure belongs to: the first or the last one of a plan, which is not empty.
int MainWindow::airportRow(const ProcedureKind& kind) const
{
    return kind.departs ? 0 : flightPlan->lines.size() - 1;
}

void MainWindow::createProcedure(const ProcedureKind& kind)
{
    if (flightPlan->lines.isEmpty()) {
        return;
    }
    if (planLine(airportRow(kind))->usage != QLatin1String("airp")) {
        QMessageBox::warning(this, tr(kind.creationTitle), tr(kind.noAirport));
        return;
    }
    bool accepted = false;
    const QString name =
        QInputDialog::getText(this, tr(kind.nameTitle), tr(kind.nameLabel), QLineEdit::Normal, QString(), &accepted);
    // The page may have changed the plan while the dialog was open: the plan as it is now is stored.
    if (!accepted || name.isEmpty() || flightPlan->lines.isEmpty() || !databaseIsInPlace(settings->dbRTE)) {
        return;
    }
    const int row = airportRow(kind);
    QSqlQuery query(QSqlDatabase::database(settings->dbRTE));
    OneWait patience(QSqlDatabase::database(settings->dbRTE));
    const StoredProcedure procedure{name, planLine(row)->dbKey, kind.type};
    const QStringList statements = procedureStatements(flightPlan->lines, procedure);
    for (int place = 0; place < statements.size(); ++place) {
        if (isSoundStatement(place, flightPlan->lines, procedure)) {
            patience.exec(query, statements.at(place)); // one that fails goes unnoticed: the message is the same
        }
    }
    on_fltplnGrid_cellClicked(row, 1);
    QMessageBox::information(this, tr(kind.storedTitle), tr(kind.stored).arg(name));
}

void MainWindow::on_btnCreateSID_clicked()
{
    createProcedure(sidKind);
}

void MainWindow::on_btnCreateSTAR_clicked()
{
    createProcedure(starKind);
}

void MainWindow::fillSidStarTrees(const QString& aptKey)
{
    QSqlQuery row(QSqlDatabase::database(settings->dbRTE));
    QTreeWidgetItem* top = nullptr;
    for (bool more = settings->sqlMgr->getSIDSTAR(aptKey, true, row); more; more = row.next()) {
        if (row.value(procedurecolumn::number).toInt() == firstProcedureNumber) {
            const bool star = row.value(procedurecolumn::type).toInt() == static_cast<int>(ProcedureType::Star);
            top =
                new QTreeWidgetItem(star ? ui->treeWStar : ui->treeWSid, {row.value(procedurecolumn::name).toString()});
        }
        // A point before any first one belongs to no procedure and is not shown.
        if (top != nullptr) {
            top->addChild(pointItem(row));
        }
    }
}

void MainWindow::showSidStar(const QString& name)
{
    clearSidStarOnMap();
    QSqlQuery row(QSqlDatabase::database(settings->dbRTE));
    QStringList scripts;
    for (bool more = settings->sqlMgr->getSIDSTAR(name, true, row); more; more = row.next()) {
        CFpLine line;
        line.fromSidStar(row);
        scripts << mapscript::addPointToSs(
            {line.latS / arcSecondsPerDegree, wrapHalfCircleArcSeconds(line.lonS) / arcSecondsPerDegree}, line.name);
    }
    runMapScript(scripts.join(QLatin1Char(';')));
}

void MainWindow::clearSidStarOnMap()
{
    runMapScript(mapscript::clearSs());
}

void MainWindow::on_treeWSid_itemClicked(QTreeWidgetItem* item, int column)
{
    Q_UNUSED(column)
    showSidStar(procedureOf(item)->text(0));
}

void MainWindow::on_treeWStar_itemClicked(QTreeWidgetItem* item, int column)
{
    Q_UNUSED(column)
    showSidStar(procedureOf(item)->text(0));
}

QTreeWidgetItem* MainWindow::selectedTreeItem(const ProcedureKind& kind) const
{
    const QList<QTreeWidgetItem*> selected = (ui.get()->*kind.tree)->selectedItems();
    return selected.size() == 1 ? selected.first() : nullptr;
}

void MainWindow::addProcedureToPlan(const ProcedureKind& kind)
{
    const QTreeWidgetItem* item = selectedTreeItem(kind);
    if (item == nullptr) {
        return;
    }
    int position = ui->fltplnGrid->currentRow();
    QSqlQuery row(QSqlDatabase::database(settings->dbRTE));
    // The text of the very item that is selected: a point has none there, and adds nothing.
    for (bool more = settings->sqlMgr->getSIDSTAR(item->text(0), true, row); more; more = row.next()) {
        if (row.value(procedurecolumn::pointType).toInt() == airportPointType) {
            continue; // stands in the plan already
        }
        const CFpLinePtr line = flightPlan->newLine();
        line->fromSidStar(row);
        // Behind the current line, the departure, or ahead of it, the destination, which moves down.
        flightPlan->insertLine(line, kind.departs ? ++position : position++);
    }
    clearSidStarOnMap();
    runMapScript(flightPlan->refresh());
    ui->dockWFlightPlan->raise();
}

void MainWindow::on_btnAddSid_clicked()
{
    addProcedureToPlan(sidKind);
}

void MainWindow::on_btnAddStar_clicked()
{
    addProcedureToPlan(starKind);
}

// The words are a STAR's for a SID as well: the flag has never been looked at.
void MainWindow::delSIDSTAR(QTreeWidgetItem* sidstar, bool sid)
{
    Q_UNUSED(sid)
    if (sidstar == nullptr) {
        return;
    }
    // Only the text is kept: the item may be gone when the question is answered.
    const QString name = sidstar->text(0);
    const int answer = askDeleteData(tr("Effacer un SID/STAR"), tr("Voulez vous effacer le SID/STAR %1 ?").arg(name));
    carryOut({settings->dbRTE, &SqlMgr::delSIDSTARname, name, mapscript::clearSs(), name,
              deletionLine({fieldsSIDSTAR[3].code, name}), tr("Effacement STAR"),
              tr("La STAR %1 a été effacé").arg(name), tr("Suppression/export d'un SIDSTAR"),
              tr("Le SIDSTAR %1 a été effacé et enregistrer pour export \ndans %2"),
              tr("Le SIDSTAR %1 a été effacé mais l'export à échoué")},
             answer, *this);
}

// No button calls this one. Its update line names the column alone, without the airport's key.
void MainWindow::delAllSIDSTAR(const QString& aptKey)
{
    const int answer =
        askDeleteData(tr("Effacer les SID/STAR"), tr("Voulez vous effacer tous les SID/STAR de %1 ?").arg(aptKey));
    carryOut({settings->dbRTE, &SqlMgr::delSIDSTARapt, aptKey, mapscript::clearSs(), aptKey,
              deletionLine({fieldsSIDSTAR[2].code}), tr("Effacement SID/STAR"),
              tr("Les SID/STAR de %1 ont été effacé").arg(aptKey), tr("Suppression/export d'un SIDSTAR"),
              tr("Les SIDSTAR de %1 ont été effacé et enregistrer pour export \ndans %2"),
              tr("Le SIDSTAR %1 a été effacé mais l'export à échoué")},
             answer, *this);
}

// The item goes whatever the answer: after a cancel the procedure is back with the next click on its airport.
void MainWindow::deleteProcedure(const ProcedureKind& kind)
{
    QTreeWidgetItem* item = selectedTreeItem(kind);
    if (item == nullptr) {
        return;
    }
    QTreeWidget* tree = ui.get()->*kind.tree;
    QTreeWidgetItem* procedure = procedureOf(item);
    // While the boxes are open the page may have both trees filled anew, and the item is then gone already.
    const QPersistentModelIndex place = tree->model()->index(tree->indexOfTopLevelItem(procedure), 0);
    delSIDSTAR(procedure, kind.type == ProcedureType::Sid);
    if (place.isValid()) {
        delete tree->topLevelItem(place.row());
    }
}

void MainWindow::on_pbDelSID_clicked()
{
    deleteProcedure(sidKind);
}

void MainWindow::on_pbDelSTAR_clicked()
{
    deleteProcedure(starKind);
}

// Whatever the two buttons say, they take the one selected procedure out of its tree, and out of nothing else.
void MainWindow::takeProcedureOffTree(const ProcedureKind& kind)
{
    if (QTreeWidgetItem* item = selectedTreeItem(kind)) {
        delete procedureOf(item);
    }
}

void MainWindow::on_pbDelAllSID_clicked()
{
    takeProcedureOffTree(sidKind);
}

void MainWindow::on_pbDelAllSTAR_clicked()
{
    takeProcedureOffTree(starKind);
}

// Bringing one of these docks to the front wipes the drawn procedure.

void MainWindow::on_dockWFlightPlan_visibilityChanged(bool visible)
{
    if (visible) {
        clearSidStarOnMap();
    }
}

void MainWindow::on_dockWSid_visibilityChanged(bool visible)
{
    if (visible) {
        clearSidStarOnMap();
    }
}

void MainWindow::on_dockWStar_visibilityChanged(bool visible)
{
    if (visible) {
        clearSidStarOnMap();
    }
}
