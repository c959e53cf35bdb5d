// The search dock: rows of the databases as ready plan lines.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "cflightplan.h"
#include "pointsearch.h"
#include "resourceicon.h"

#include <QHash>

namespace {

constexpr int indexColumn = 5; ///< beyond the headers: the line's place among the found lines

QIcon bitmapIcon(const QString& name)
{
    return resourceIcon(QStringLiteral(":/icon/images/%1.bmp").arg(name));
}

// By the type of the navaid; any other has no icon.
QIcon navaidIcon(int type)
{
    static const QHash<int, QString> names{
        {1, QStringLiteral("Img05")},  {4, QStringLiteral("Img05")}, {16, QStringLiteral("Img05")},
        {17, QStringLiteral("Img05")}, {8, QStringLiteral("Img03")}, {32, QStringLiteral("Img03")},
    };
    return names.contains(type) ? bitmapIcon(names.value(type)) : QIcon();
}

// An item that says what its line says. A found line keeps its names as long as it is found, so that the item needs no
// texts of its own: a near search of nothing makes hundreds of thousands of items.
class FoundItem : public QTreeWidgetItem
{
public:
    FoundItem(const CFpLinePtr& foundLine, int indexOfLine, const QIcon& itemIcon)
        : line(foundLine), index(indexOfLine), icon(itemIcon)
    {
    }

    QVariant data(int column, int role) const override
    {
        if (role == Qt::DecorationRole && column == 0) {
            return icon;
        }
        return role == Qt::DisplayRole || role == Qt::EditRole ? shownText(column)
                                                               : QTreeWidgetItem::data(column, role);
    }

private:
    QVariant shownText(int column) const
    {
        switch (column) {
        case 0:
            return QString();
        case 1:
            return line->iden;
        case 2:
            return line->ctry;
        case 3:
            return line->name;
        case 4:
            return line->dbKey;
        case indexColumn:
            return QString::number(index);
        default:
            return {};
        }
    }

    const CFpLinePtr line;
    const int index;
    const QIcon icon;
};

// The found lines and their items, built together so that the indexes match. The items go to the tree at the end, in
// one go: a tree that takes them one by one lays itself out for each.
class FoundItems
{
public:
    FoundItems(QVector<CFpLinePtr>& foundLines, int lineSpeed, int lineAltitude)
        : lines(foundLines), speed(lineSpeed), altitude(lineAltitude)
    {
    }

    void add(const FoundPoint& point, const QIcon& icon)
    {
        point.line->speed = speed;
        point.line->altd = altitude;
        QTreeWidgetItem* item = makeItem(point.line, icon);
        for (const CFpLinePtr& runway : point.runways) {
            item->addChild(makeItem(runway, runwayIcon));
        }
        items << item;
    }

    QList<QTreeWidgetItem*> items;

private:
    QTreeWidgetItem* makeItem(const CFpLinePtr& line, const QIcon& icon)
    {
        auto* item = new FoundItem(line, lines.size(), icon);
        lines << line;
        return item;
    }

    QVector<CFpLinePtr>& lines;
    const int speed;
    const int altitude;
    const QIcon runwayIcon = bitmapIcon(QStringLiteral("Img10"));
};

} // namespace

void MainWindow::searchInTable(bool exact)
{
    searchKey = ui->searchData->text().toUpper();
    ui->searchData->setText(searchKey);
    ui->treeWFound->clear();
    flightPlan->foundLines.clear();

    FoundItems found(flightPlan->foundLines, ui->leSpeedCruise->text().toInt(), ui->leAltCruise->text().toInt());
    const QIcon airportIcon = bitmapIcon(QStringLiteral("Img08"));
    for (const FoundPoint& airport : findAirports(*flightPlan, searchKey, exact)) {
        found.add(airport, airportIcon);
    }
    for (const FoundPoint& navaid : findNavaids(*flightPlan, searchKey, exact)) {
        found.add(navaid, navaidIcon(navaid.line->navType));
    }
    const QIcon waypointIcon = bitmapIcon(QStringLiteral("Img12"));
    for (const FoundPoint& waypoint : findWaypoints(*flightPlan, searchKey, exact)) {
        found.add(waypoint, waypointIcon);
    }
    ui->treeWFound->addTopLevelItems(found.items);
}

void MainWindow::on_searchData_returnPressed()
{
    searchInTable(true);
}

void MainWindow::on_btnSearchExact_clicked()
{
    searchInTable(true);
}

void MainWindow::on_btnSearchNear_clicked()
{
    searchInTable(false);
}

void MainWindow::on_treeWFound_itemDoubleClicked(QTreeWidgetItem* item, int column)
{
    Q_UNUSED(column)
    const CFpLinePtr line = foundLine(item);
    if (!line) {
        return;
    }
    int row = ui->fltplnGrid->currentRow();
    int place = row + 1;
    if (row < 0) {
        setPlanActions(true);
        row = 0;
        place = 1;
    }
    flightPlan->insertLine(line, place);
    runMapScript(flightPlan->refresh());
    ui->dockWFlightPlan->raise();
    on_fltplnGrid_cellClicked(row, 2);
}

void MainWindow::sFndCenterAt()
{
    centerOnLine(foundLine(ui->treeWFound->currentItem()));
}

CFpLinePtr MainWindow::foundLine(const QTreeWidgetItem* item) const
{
    return item == nullptr ? CFpLinePtr() : flightPlan->foundLines.value(item->text(indexColumn).toInt());
}
