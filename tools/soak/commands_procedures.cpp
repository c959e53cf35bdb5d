// Stored procedures: made from the plan, shown, added to it, deleted.
#include "command.h"
#include "soakworld.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

namespace {

constexpr int mostOwnProcedures = 12;
constexpr int longestProcedure = 12;
constexpr int longestPlan = 40;

struct Kind
{
    const char* word;
    const char* dock;
    const char* tree;
    const char* create;
    const char* add;
    const char* remove;
    const char* removeAll;
    bool departs;
};

const Kind kinds[] = {
    {"SID", "dockWSid", "treeWSid", "btnCreateSID", "btnAddSid", "pbDelSID", "pbDelAllSID", true},
    {"STAR", "dockWStar", "treeWStar", "btnCreateSTAR", "btnAddStar", "pbDelSTAR", "pbDelAllSTAR", false},
};

const Kind& either(SoakWorld& world)
{
    return kinds[world.dice.below(2)];
}

bool canCreate(SoakWorld& world)
{
    return world.docksAreShown() && world.session.find<QPushButton>("btnCreateSID")->isEnabled() &&
           world.deeds.ownProcedures.size() < mostOwnProcedures && world.planSize() <= longestProcedure;
}

/// A letter at the end: the number of a row is put behind the name, and no two rows may have one key.
QString throwName(SoakWorld& world)
{
    return QString("SOAK%1A").arg(world.dice.below(1000), 3, 10, QChar('0'));
}

void create(SoakWorld& world)
{
    const Kind& kind = either(world);
    const QString name = throwName(world);
    const int answer = world.dice.below(10); // 0 is a refusal, 1 an empty name
    const QList<CFpLinePtr>& lines = world.plan().lines;
    const bool stands = !lines.isEmpty() && (kind.departs ? lines.first() : lines.last())->usage == "airp";
    world.note(QString("%1 %2").arg(kind.word, stands ? name : "without an airport"));
    if (!lines.isEmpty() && !stands) {
        world.expectMessage(
            QString("Création d'un %1").arg(kind.word),
            QString("Le nouveau %1 doit %2 par un aéroport").arg(kind.word, kind.departs ? "commencé" : "finir"));
    } else if (stands && answer == 0) {
        world.boxes.expectInputRejected(QString("Nouveau %1").arg(kind.word), QString("Nom du %1").arg(kind.word));
    } else if (stands) {
        world.boxes.expectInput(QString("Nouveau %1").arg(kind.word), QString("Nom du %1").arg(kind.word),
                                answer == 1 ? QString() : name);
    }
    const bool stored = stands && answer > 1;
    if (stored) {
        world.expectMessage(QString("Enregistrement %1").arg(kind.word),
                            QString("Le %1 %2 a été enregistré").arg(kind.word, name));
        world.deeds.procedures[name] = lines.size();
        world.deeds.ownProcedures << name;
    }
    world.openDock("dockWFlightPlan");
    world.clickButton(kind.create);
    if (stored) {
        const QString points = QString("SELECT swid FROM SIDSTAR WHERE strm = '%1' ORDER BY sqnm").arg(name);
        world.require(world.column(world.settings().dbRTE, points) == world.planIdents(),
                      "the stored points are not the plan's");
    }
}

bool hasProcedures(SoakWorld& world)
{
    return world.docksAreShown() &&
           world.tree("treeWSid")->topLevelItemCount() + world.tree("treeWStar")->topLevelItemCount() > 0;
}

/// A kind whose tree is not empty.
const Kind& listed(SoakWorld& world)
{
    const Kind& kind = either(world);
    return world.tree(kind.tree)->topLevelItemCount() > 0 ? kind : kinds[&kind == kinds ? 1 : 0];
}

/// Presses a procedure, or one of its points, and gives it back.
QTreeWidgetItem* pressItem(SoakWorld& world, const Kind& kind, bool maybePoint)
{
    world.openDock(kind.dock);
    QTreeWidget* tree = world.tree(kind.tree);
    QTreeWidgetItem* item = tree->topLevelItem(world.dice.below(tree->topLevelItemCount()));
    const bool point = world.dice.chance(25);
    if (maybePoint && point && item->childCount() > 0) {
        item = item->child(world.dice.below(item->childCount()));
    }
    world.clickItem(tree, item);
    world.require(tree->selectedItems() == QList<QTreeWidgetItem*>{item}, "another item was pressed");
    world.note(item->parent() != nullptr ? item->parent()->text(0) + ' ' + item->text(1) : item->text(0));
    return item;
}

void show(SoakWorld& world)
{
    const QTreeWidgetItem* item = pressItem(world, listed(world), true);
    const QString name = (item->parent() != nullptr ? item->parent() : item)->text(0);
    const QStringList drawn = world.evaluate("page.procedure.points.map(point => point.name)").toStringList();
    world.require(drawn.size() == world.deeds.procedures.value(name), "the page draws " + drawn.join(' '));
}

bool canAdd(SoakWorld& world)
{
    return hasProcedures(world) && world.planSize() + longestProcedure < longestPlan;
}

void add(SoakWorld& world)
{
    const Kind& kind = listed(world);
    const QTreeWidgetItem* item = pressItem(world, kind, true);
    const QStringList points = world.column(
        world.settings().dbRTE,
        QString("SELECT swid FROM SIDSTAR WHERE strm = '%1' AND swpt <> 0 ORDER BY rowid").arg(item->text(0)));
    QStringList idents = world.planIdents();
    int position = world.grid()->currentRow();
    for (const QString& point : points) {
        const int wanted = kind.departs ? ++position : position++;
        idents.insert(qBound(0, wanted, idents.size()), point);
    }
    world.clickButton(kind.add);
    world.deeds.typedCells.clear();
    world.require(world.planIdents() == idents, "the plan is " + world.planIdents().join(' '));
}

void expectDeletion(SoakWorld& world, const QString& name, int answer)
{
    const char* const buttons[] = {"Effacer", "Effacer\n& Exporter", "Annuler"};
    world.boxes.expectMessage(QString(), "Effacer un SID/STAR", buttons[answer]);
    if (answer == 0) {
        world.expectMessage("Effacement STAR", QString("La STAR %1 a été effacé").arg(name));
    } else if (answer == 1) {
        world.deeds.updates << name;
        world.expectMessage("Suppression/export d'un SIDSTAR",
                            QString("Le SIDSTAR %1 a été effacé et enregistrer pour export \ndans %2")
                                .arg(name, QString(world.updatePath(name)).replace("/Data/", "\\Data\\")));
    }
}

void remove(SoakWorld& world)
{
    const Kind& kind = listed(world);
    const QTreeWidgetItem* item = pressItem(world, kind, true);
    const QString name = (item->parent() != nullptr ? item->parent() : item)->text(0);
    // The demonstration's own are to last.
    const bool own = world.deeds.ownProcedures.contains(name);
    const int answer = own ? world.dice.below(3) : 2;
    const int listedBefore = world.tree(kind.tree)->topLevelItemCount();
    world.note(QString::number(answer));
    expectDeletion(world, name, answer);
    world.clickButton(kind.remove);
    world.require(world.tree(kind.tree)->topLevelItemCount() == listedBefore - 1, "the item stays in the tree");
    if (answer != 2) {
        world.deeds.procedures.remove(name);
        world.deeds.ownProcedures.remove(name);
    }
}

/// Takes one procedure off the tree, whatever the button says.
void removeFromTree(SoakWorld& world)
{
    const Kind& kind = listed(world);
    pressItem(world, kind, true);
    const int listedBefore = world.tree(kind.tree)->topLevelItemCount();
    world.clickButton(kind.removeAll);
    world.require(world.tree(kind.tree)->topLevelItemCount() == listedBefore - 1, "the item stays in the tree");
}

/// The list of the airways through a point, where there are any.
void listAirways(SoakWorld& world)
{
    const QString ident =
        world.dice.pick(world.column(world.settings().dbRTE, "SELECT nvi1 FROM ATSROUTE GROUP BY nvi1 ORDER BY nvi1"));
    const QStringList airways = world.column(
        world.settings().dbRTE,
        QString("SELECT DISTINCT aaid FROM ATSROUTE WHERE nvi1 = '%1' OR nvi2 = '%1' ORDER BY rowid").arg(ident));
    const QString label = QString("Liste des voies passant par le point %1").arg(ident);
    world.note(ident);
    if (world.dice.chance(50)) {
        world.boxes.expectInput("Voie aérienne", label, world.dice.pick(airways));
    } else {
        world.boxes.expectInputRejected("Voie aérienne", label);
    }
    world.callProgram("sATS", {ident + "-KEY", ""});
}

} // namespace

QVector<Command> procedureCommands()
{
    return {
        {"create procedure", 3, canCreate, create},
        {"show procedure", 4, hasProcedures, show},
        {"add procedure", 3, canAdd, add},
        {"delete procedure", 2, hasProcedures, remove},
        {"take procedure off the tree", 1, hasProcedures, removeFromTree},
        {"list airways", 2, nullptr, listAirways},
    };
}
