// The search dock.
#include "command.h"
#include "soakworld.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QAction>
#include <QLineEdit>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

constexpr int identColumn = 1;
constexpr int indexColumn = 5;

/// A text of some row, or the beginning of one.
QString searchedText(SoakWorld& world)
{
    const struct
    {
        QString connection;
        const char* statement;
    } sources[] = {
        {world.settings().dbGEN, "SELECT iden FROM APT ORDER BY ukey"},
        {world.settings().dbGEN, "SELECT name FROM APT ORDER BY ukey"},
        {world.settings().dbGEN, "SELECT iden FROM NAV ORDER BY ukey"},
        {world.settings().dbWPT, "SELECT name FROM WPT ORDER BY ukey"},
    };
    const auto& source = sources[world.dice.below(4)];
    const QString text = world.dice.pick(world.column(source.connection, source.statement));
    return world.dice.chance(50) ? text : text.left(1 + world.dice.below(3));
}

void type(SoakWorld& world, const QString& text)
{
    auto* edit = world.session.find<QLineEdit>("searchData");
    edit->setFocus();
    edit->clear();
    QTest::keyClicks(edit, text);
    world.note(text);
}

bool canSearch(SoakWorld& world)
{
    return world.docksAreShown();
}

/// Whether some row of the tables has the text where an exact search looks.
bool isStored(SoakWorld& world, const QString& text)
{
    const QString condition =
        QString("ukey = '%1' OR iden = '%1' OR name = '%1'").arg(text.toUpper().replace("'", "''"));
    return !world.column(world.settings().dbGEN, "SELECT ukey FROM APT WHERE " + condition).isEmpty() ||
           !world.column(world.settings().dbGEN, "SELECT ukey FROM NAV WHERE " + condition).isEmpty() ||
           !world.column(world.settings().dbWPT, "SELECT ukey FROM WPT WHERE " + condition).isEmpty();
}

void searchExact(SoakWorld& world)
{
    const QString text = searchedText(world);
    type(world, text.toLower());
    if (world.dice.chance(50)) {
        world.clickButton("btnSearchExact");
    } else {
        QTest::keyClick(world.session.find<QLineEdit>("searchData"), Qt::Key_Return);
    }
    world.require(world.session.find<QLineEdit>("searchData")->text() == text.toUpper(), "the text is not in capitals");
    world.require((world.tree("treeWFound")->topLevelItemCount() > 0) == isStored(world, text),
                  "the search for " + text + " goes wrong");
}

void searchNear(SoakWorld& world)
{
    const QString text = world.dice.chance(5) ? QString() : searchedText(world);
    type(world, text);
    world.clickButton("btnSearchNear");
    world.require(world.tree("treeWFound")->topLevelItemCount() > 0, "nothing is near to " + text);
}

bool hasFound(SoakWorld& world)
{
    return world.docksAreShown() && world.tree("treeWFound")->topLevelItemCount() > 0;
}

bool hasFoundAndRoom(SoakWorld& world)
{
    return hasFound(world) && world.planSize() < 40;
}

/// A found point, of which a runway's end lies below its airport.
QTreeWidgetItem* pickFound(SoakWorld& world)
{
    QTreeWidget* tree = world.tree("treeWFound");
    QTreeWidgetItem* item = tree->topLevelItem(world.dice.below(tree->topLevelItemCount()));
    if (item->childCount() > 0 && world.dice.chance(30)) {
        item = item->child(world.dice.below(item->childCount()));
    }
    world.note(item->text(identColumn));
    world.clickItem(tree, item);
    world.require(tree->currentItem() == item, "another item was pressed");
    return item;
}

void addFound(SoakWorld& world)
{
    QTreeWidgetItem* item = pickFound(world);
    const CFpLinePtr line = world.plan().foundLines.value(item->text(indexColumn).toInt());
    QStringList idents = world.planIdents();
    const int row = world.grid()->currentRow();
    idents.insert(row < 0 ? qMin(1, idents.size()) : row + 1, item->text(identColumn));
    QTreeWidget* tree = world.tree("treeWFound");
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualItemRect(item).center());
    world.deeds.typedCells.clear();
    world.require(world.planIdents() == idents, "the plan is " + world.planIdents().join(' '));
    world.require(world.plan().lines.contains(line), "it is not the found point that went into the plan");
}

void centreOnFound(SoakWorld& world)
{
    const QTreeWidgetItem* item = pickFound(world);
    world.session.action("actFndCenter")->trigger();
    const CFpLinePtr line = world.plan().foundLines.value(item->text(indexColumn).toInt());
    const double latitude = world.evaluate("map.getCenter().lat()").toDouble();
    world.require(world.mapMoves() || qAbs(latitude - line->latS / 3600) < 0.001, "the map shows another place");
}

} // namespace

QVector<Command> searchCommands()
{
    return {
        {"search exact", 5, canSearch, searchExact},
        {"search near", 4, canSearch, searchNear},
        {"add found", 6, hasFoundAndRoom, addFound},
        {"centre on found", 2, hasFound, centreOnFound},
    };
}
