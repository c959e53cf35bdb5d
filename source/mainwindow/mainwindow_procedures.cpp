// Stored SID and STAR: the two trees and the procedure drawn beside the plan.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "cfpline.h"
#include "cnavglobalvar.h"
#include "mapscript.h"
#include "positions.h"

#include <QIcon>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

constexpr int firstSequenceNumber = 10; ///< opens a procedure in the sequence of its rows
constexpr int starType = 1;

// By the type code of the point; any other has no icon.
QIcon pointIcon(int typeCode)
{
    struct TypeIcon
    {
        int typeCode;
        const char* path;
    };
    static const TypeIcon icons[] = {
        {8, ":/icon/images/Img03.bmp"},  {0, ":/icon/images/Img08.bmp"},    {1, ":/icon/images/Img05.bmp"},
        {17, ":/icon/images/Img05.bmp"}, {4096, ":/icon/images/Img35.bmp"},
    };
    for (const TypeIcon& entry : icons) {
        if (entry.typeCode == typeCode) {
            return QIcon(QLatin1String(entry.path));
        }
    }
    return QIcon();
}

QTreeWidgetItem* pointItem(const QSqlQuery& row)
{
    auto* item = new QTreeWidgetItem;
    item->setIcon(0, pointIcon(row.value(7).toInt()));
    item->setText(1, row.value(6).toString());
    item->setForeground(1, Qt::blue);
    return item;
}

// The name stands on the top item, whichever of its points is clicked.
QString nameOfProcedure(const QTreeWidgetItem* item)
{
    while (item != nullptr && item->parent() != nullptr) {
        item = item->parent();
    }
    return item != nullptr ? item->text(0) : QString();
}

} // namespace

void MainWindow::fillSidStarTrees(const QString& aptKey)
{
    QSqlQuery row(QSqlDatabase::database(settings->dbRTE));
    QTreeWidgetItem* top = nullptr;
    for (bool more = settings->sqlMgr->getSIDSTAR(aptKey, true, row); more; more = row.next()) {
        if (row.value(4).toInt() == firstSequenceNumber) {
            QTreeWidget* tree = row.value(5).toInt() == starType ? ui->treeWStar : ui->treeWSid;
            top = new QTreeWidgetItem(tree, {row.value(3).toString()});
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
    showSidStar(nameOfProcedure(item));
}

void MainWindow::on_treeWStar_itemClicked(QTreeWidgetItem* item, int column)
{
    Q_UNUSED(column)
    showSidStar(nameOfProcedure(item));
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
