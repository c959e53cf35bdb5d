#include "plangrid.h"

#include "resourceicon.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>

namespace {

constexpr int firstValueColumn = 3;
constexpr int columnCount = 10;
constexpr int identityColumn = 1;
constexpr int rowHeight = 20; // pixels
constexpr int ndbType = 8;

struct Kind
{
    const char* usage;
    int navType; ///< -1 for any
    const char* icon;
    const char* word;
};

// The first row that fits decides. The words are the design's own and are not translated.
const Kind kinds[] = {
    {"airp", -1, ":/icon/images/Img08.bmp", "Airport"},
    {"snav", ndbType, ":/icon/images/Img03.bmp", "Navaid"},
    {"snav", -1, ":/icon/images/Img05.bmp", "Navaid"},
    {"uswp", -1, ":/icon/images/Img12.bmp", "Waypoint"},
};

/// The item of column 0, or null for a usage that has none.
QTableWidgetItem* kindItem(const CFpLine& line)
{
    for (const Kind& kind : kinds) {
        if (line.usage == QLatin1String(kind.usage) && (kind.navType < 0 || kind.navType == line.navType)) {
            return new QTableWidgetItem(resourceIcon(QLatin1String(kind.icon)), QLatin1String(kind.word));
        }
    }
    return nullptr;
}

void fillRow(QTableWidget& grid, int row, const CFpLine& line)
{
    const QString texts[] = {
        line.iden,
        line.name,
        QStringLiteral("%1").arg(line.freq, 3, 'f', 3),
        QStringLiteral("%1").arg(static_cast<double>(line.speed), 3, 'f', 0),
        QStringLiteral("%1°").arg(line.route, 3, 'f', 0),
        QStringLiteral("%1").arg(line.dist, 5, 'f', 1),
        QStringLiteral("%1").arg(line.duration),
        line.timeAt.toString(QStringLiteral("hh:mm")),
        QStringLiteral("%1").arg(line.altd),
    };
    grid.setItem(row, 0, kindItem(line));
    int column = identityColumn;
    for (const QString& text : texts) {
        grid.setItem(row, column++, new QTableWidgetItem(text));
    }
    // Points of the viewport, not cells: the values keep the default alignment. A point can lie on no item.
    for (int x = firstValueColumn; x < columnCount; ++x) {
        if (QTableWidgetItem* item = grid.itemAt(x, row)) {
            item->setData(Qt::TextAlignmentRole, 2);
        }
    }
}

// Rows that go away take the current cell with them. The signal of that comes while the table is removing them, and
// whoever answers it with another refresh would set the row count again, inside the removal: the table does not
// survive that.
void setRowCountSilently(QTableWidget& grid, int count)
{
    const QSignalBlocker blocker(grid);
    grid.setRowCount(count);
}

} // namespace

void fillPlanGrid(QTableWidget& grid, const QList<CFpLinePtr>& lines)
{
    setRowCountSilently(grid, lines.size());
    if (lines.isEmpty()) {
        return;
    }
    for (int row = 0; row < lines.size(); ++row) {
        fillRow(grid, row, *lines.at(row));
    }
    // A style's own minimum would make the rows higher.
    grid.verticalHeader()->setMinimumSectionSize(rowHeight);
    for (int row = 0; row < lines.size(); ++row) {
        grid.setRowHeight(row, rowHeight);
    }
    grid.setCurrentCell(lines.size() - 1, identityColumn);
}

void clearPlanGrid(QTableWidget& grid)
{
    setRowCountSilently(grid, 0);
}
