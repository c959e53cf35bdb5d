// The search dock: rows of the databases as ready plan lines.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QIcon>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

constexpr int indexColumn = 5; ///< beyond the headers: the line's place among the found lines

QIcon resourceIcon(const QString& name)
{
    return QIcon(QStringLiteral(":/icon/images/%1.bmp").arg(name));
}

// One run through the three tables. Lines and items are built together, so that the indexes match; the items go to
// the tree at the end, in one go: a tree that takes them one by one lays itself out for each.
class Search
{
public:
    Search(CNavGlobalVar& globals, const QString& searchKey, bool exactMatch, int lineSpeed, int lineAltitude)
        : settings(globals), plan(*globals.flightPlan), key(searchKey), exact(exactMatch), speed(lineSpeed),
          altitude(lineAltitude)
    {
    }

    void airports()
    {
        QSqlQuery row = walkOnce(settings.dbGEN);
        for (bool more = settings.sqlMgr->getAPT(key, exact, row); more; more = row.next()) {
            const CFpLinePtr line = plan.newLine();
            line->fromApt(row);
            addRunways(line->dbKey, addItem(line, airportIcon));
        }
    }

    void navaids()
    {
        QSqlQuery row = walkOnce(settings.dbGEN);
        for (bool more = settings.sqlMgr->getNAV(key, exact, row); more; more = row.next()) {
            const CFpLinePtr line = plan.newLine();
            line->fromNav(row);
            addItem(line, navaidIcon(line->navType));
        }
    }

    void waypoints()
    {
        QSqlQuery row = walkOnce(settings.dbWPT);
        for (bool more = settings.sqlMgr->getWPT(key, exact, row); more; more = row.next()) {
            const CFpLinePtr line = plan.newLine();
            line->fromWpt(row);
            addItem(line, waypointIcon);
        }
    }

    QList<QTreeWidgetItem*> items;

private:
    static QSqlQuery walkOnce(const QString& connection)
    {
        QSqlQuery query(QSqlDatabase::database(connection));
        query.setForwardOnly(true);
        return query;
    }

    // An approximate search is approximate here too: an airport also gets the runways of those whose key begins with
    // its own.
    void addRunways(const QString& airportKey, QTreeWidgetItem* parent)
    {
        QSqlQuery row = walkOnce(settings.dbGEN);
        for (bool more = settings.sqlMgr->getRWY(airportKey, exact, row); more; more = row.next()) {
            const CFpLinePtr high = plan.newLine();
            high->fromRwyHigh(row);
            parent->addChild(makeItem(high, runwayIcon));
            const CFpLinePtr low = plan.newLine();
            low->fromRwyLow(row);
            parent->addChild(makeItem(low, runwayIcon));
        }
    }

    QTreeWidgetItem* addItem(const CFpLinePtr& line, const QIcon& icon)
    {
        line->speed = speed;
        line->altd = altitude;
        items << makeItem(line, icon);
        return items.last();
    }

    QTreeWidgetItem* makeItem(const CFpLinePtr& line, const QIcon& icon)
    {
        const QString index = QString::number(plan.foundLines.size());
        auto* item = new QTreeWidgetItem({QString(), line->iden, line->ctry, line->name, line->dbKey, index});
        item->setIcon(0, icon);
        plan.foundLines << line;
        return item;
    }

    QIcon navaidIcon(int type) const
    {
        switch (type) {
        case 1:
        case 4:
        case 16:
        case 17:
            return vorIcon;
        case 8:
        case 32:
            return ndbIcon;
        default:
            return QIcon();
        }
    }

    CNavGlobalVar& settings;
    CFlightPlan& plan;
    const QString key;
    const bool exact;
    const int speed;
    const int altitude;
    const QIcon airportIcon = resourceIcon(QStringLiteral("Img08"));
    const QIcon runwayIcon = resourceIcon(QStringLiteral("Img10"));
    const QIcon vorIcon = resourceIcon(QStringLiteral("Img05"));
    const QIcon ndbIcon = resourceIcon(QStringLiteral("Img03"));
    const QIcon waypointIcon = resourceIcon(QStringLiteral("Img12"));
};

} // namespace

void MainWindow::searchInTable(bool exact)
{
    searchKey = ui->searchData->text().toUpper();
    ui->searchData->setText(searchKey);
    ui->treeWFound->clear();
    flightPlan->foundLines.clear();

    Search search(*settings, searchKey, exact, ui->leSpeedCruise->text().toInt(), ui->leAltCruise->text().toInt());
    search.airports();
    search.navaids();
    search.waypoints();
    ui->treeWFound->addTopLevelItems(search.items);
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
