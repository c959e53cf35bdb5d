// Navaids and waypoints made, changed, deleted and imported.
#include "command.h"
#include "soakworld.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QtTest>

namespace {

/// More than these would be a database that only grows.
constexpr int mostOwnRows = 25;

/// What tells the two tables apart.
struct Kind
{
    const char* table;
    QString CNavGlobalVar::*connection;
    QSet<QString> Deeds::*keys;
    QSet<QString> Deeds::*ownKeys;
    const char* family; ///< of its markers
    const char* dialogClass;
    const char* editSlot;
    const char* deleteWord; ///< entry of the page's menu
    const char* storedTitle;
    const char* storedText;
    const char* deletedTitle;
    const char* deletedText;
    const char* missingText;
};

const Kind navaids = {"NAV",
                      &CNavGlobalVar::dbGEN,
                      &Deeds::navaids,
                      &Deeds::ownNavaids,
                      "navaid",
                      "CDialogNav",
                      "sAddNavToDB",
                      "deleteNavaid",
                      "Nouveau NAVAID",
                      "%1 a été modifié/ajouté à la base GEN.db",
                      "Suppression d'un navaid",
                      "Le navaid %1 a été effacé",
                      "Le point sélectionné n'existe pas dans la base"};
const Kind waypoints = {"WPT",
                        &CNavGlobalVar::dbWPT,
                        &Deeds::waypoints,
                        &Deeds::ownWaypoints,
                        "waypoint",
                        "CDialogWpt",
                        "sAddWptToDB",
                        "deleteWaypoint",
                        "Nouveau WAYPOINT",
                        "%1 a été modifié/ajouté à la base WPT.db",
                        "Suppression d'un waypoint",
                        "Le waypoint %1 a été effacé",
                        "Le waypoint sélectionné n'existe pas dans la base"};

const Kind& either(SoakWorld& world)
{
    return world.dice.chance(50) ? navaids : waypoints;
}

template <typename T>
T* widgetOf(const QDialog* dialog, const char* name)
{
    T* widget = dialog->findChild<T*>(name);
    if (widget == nullptr) {
        qFatal("the dialog has no \"%s\" of this class", name);
    }
    return widget;
}

QString shownName(SoakWorld& world, const QString& label)
{
    return QString(world.updatePath(label)).replace("/Data/", "\\Data\\");
}

void type(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

/// A name of letters that no row has yet.
QString newName(SoakWorld& world, const char* beginning, int letters)
{
    QString name;
    do {
        name = beginning;
        for (int i = 0; i < letters; ++i) {
            name += QChar('A' + world.dice.below(26));
        }
    } while (!(world.deeds.waypoints + world.deeds.navaids).values().filter(QRegularExpression('^' + name)).isEmpty());
    return name;
}

/// What is chosen in a dialog before it is opened: inside it other boxes can come between the throws.
struct Entry
{
    bool accepted;
    bool exported;
    QString name;
    int usage; ///< which of the usage buttons
    int place; ///< percent: below a quarter the position dialog is opened, and every other time accepted
    double frequency;
};

Entry throwEntry(SoakWorld& world, const QString& name)
{
    return {world.dice.chance(80), world.dice.chance(40), name,
            world.dice.below(5),   world.dice.below(100), 108.0 + 0.025 * world.dice.below(390)};
}

/// The position dialog, opened by a press on the latitude.
void changePlace(SoakWorld& world, QDialog* dialog, bool accepted)
{
    world.boxes.expectDialog("CDialogLatLon", [accepted](QDialog* position) {
        QApplication::setActiveWindow(position);
        auto* minutes = widgetOf<QSpinBox>(position, "sbLatMin");
        minutes->setFocus();
        minutes->setValue(30);
        accepted ? position->accept() : position->reject();
    });
    const QString before = widgetOf<QLineEdit>(dialog, "sbLat")->text();
    QTest::mouseClick(widgetOf<QLineEdit>(dialog, "sbLat"), Qt::LeftButton);
    const QString after = widgetOf<QLineEdit>(dialog, "sbLat")->text();
    world.require(accepted || before == after, "a cancelled position was taken");
    QApplication::setActiveWindow(dialog);
}

void fill(SoakWorld& world, QDialog* dialog, const Kind& kind, const Entry& entry, bool isNew)
{
    QApplication::setActiveWindow(dialog);
    const char* const usages[] = {"rbHigh", "rbLow", "rbBoth", "rbTerm", "rbRnav"};
    if (isNew) {
        auto* country = widgetOf<QComboBox>(dialog, "cbCtry");
        country->setCurrentIndex(country->findText("FR"));
        // A waypoint's key follows its name, a navaid's its identifier.
        type(widgetOf<QLineEdit>(dialog, &kind == &navaids ? "leIden" : "leName"), entry.name.toLower());
    }
    if (&kind == &navaids) {
        type(widgetOf<QLineEdit>(dialog, "leName"), entry.name);
        const bool isNdb = widgetOf<QRadioButton>(dialog, "rbNDB")->isChecked() ||
                           widgetOf<QRadioButton>(dialog, "rbNDBDME")->isChecked();
        widgetOf<QDoubleSpinBox>(dialog, "sbFreq")->setValue(isNdb ? 300.0 + entry.usage : entry.frequency);
    }
    widgetOf<QRadioButton>(dialog, usages[entry.usage])->click();
    widgetOf<QCheckBox>(dialog, "cbSaveCSV")->setChecked(entry.exported);
    if (entry.place < 25) {
        changePlace(world, dialog, entry.place % 2 == 0);
    }
    world.require(!isNew || widgetOf<QLineEdit>(dialog, "leUkey")->text().startsWith(entry.name), "the key is another");
}

/// Awaits the dialog and what follows it.
void expectDialog(SoakWorld& world, const Kind& kind, const Entry& entry, bool isNew,
                  const std::shared_ptr<QString>& key)
{
    world.boxes.expectDialog(kind.dialogClass, [&world, &kind, entry, isNew, key](QDialog* dialog) {
        fill(world, dialog, kind, entry, isNew);
        *key = widgetOf<QLineEdit>(dialog, "leUkey")->text();
        const QString name = widgetOf<QLineEdit>(dialog, "leName")->text();
        if (entry.accepted) {
            world.expectMessage(kind.storedTitle, QString(kind.storedText).arg(name));
        }
        if (entry.accepted && entry.exported) {
            world.deeds.updates << name;
            world.expectMessage(
                QString(kind.storedTitle) + ": export",
                QString("Le fichier d'export pour %1\na été enregistré dans %2").arg(name, shownName(world, name)));
        }
        QTest::mouseClick(widgetOf<QPushButton>(dialog, entry.accepted ? "pbOK" : "pbCancel"), Qt::LeftButton);
    });
}

void checkExport(SoakWorld& world, const Kind& kind, const QString& label, const QString& key)
{
    QFile file(world.updatePath(label));
    world.require(file.open(QIODevice::ReadOnly), "no update file of " + label);
    const QString line = QString::fromUtf8(file.readAll());
    const QString database = &kind == &navaids ? "GEN;NAV;+;" : "WPT;WPT;+;";
    world.require(line.startsWith(database) && line.split(';').contains(key) && !line.contains('\n'),
                  "the update line is " + line);
}

/// What must be true once the dialog is closed.
void checkEdited(SoakWorld& world, const Kind& kind, const Entry& entry, const QString& key)
{
    QApplication::setActiveWindow(&world.session.window());
    world.note(key + (entry.accepted ? "" : " cancelled"));
    if (!entry.accepted) {
        return;
    }
    (world.deeds.*kind.keys) << key;
    const auto rows = world.rows(
        world.settings().*kind.connection,
        QString("SELECT name, %1 FROM %2 WHERE ukey = '%3'").arg(&kind == &navaids ? "nuse" : "wuse", kind.table, key));
    const int usages[] = {1, 2, 3, 4, 5};
    world.require(rows.size() == 1 && rows.first().at(1).toInt() == usages[entry.usage],
                  "the row is not what was typed");
    const QString name = rows.value(0).value(0).toString();
    QStringList titles;
    for (const char* list : {"listVOR", "listNDBRte", "listNDBTerm", "listWptRte", "listWptTerm", "listWptVfr"}) {
        titles << world.session.page().titles(list);
    }
    world.require(titles.count(name + '-' + key) == 1, "the page does not show the row once");
    if (entry.exported) {
        checkExport(world, kind, name, key);
    }
}

bool wantsRows(SoakWorld& world)
{
    return world.deeds.ownNavaids.size() + world.deeds.ownWaypoints.size() < mostOwnRows;
}

void makeRow(SoakWorld& world)
{
    const Kind& kind = either(world);
    const Entry entry = throwEntry(world, newName(world, &kind == &navaids ? "Z" : "SK", &kind == &navaids ? 2 : 3));
    const double latitude = world.dice.between(42, 51);
    const double longitude = world.dice.between(-5, 8);
    const bool byMenu = !world.mapMoves() && world.dice.chance(50);
    const auto key = std::make_shared<QString>();
    expectDialog(world, kind, entry, true, key);
    if (!byMenu) {
        world.callProgram(kind.editSlot, {""}, {latitude, longitude});
    } else if (!world.chooseForPlace(latitude, longitude, &kind == &navaids ? "newNavaid" : "newWaypoint")) {
        world.boxes.takeComplaints(); // the answer that nobody needs
        world.note("(not there)");
        return;
    }
    checkEdited(world, kind, entry, *key);
    if (entry.accepted) {
        (world.deeds.*kind.ownKeys) << *key;
    }
}

/// The keys in an order that does not depend on the run.
QStringList sorted(const QSet<QString>& keys)
{
    QStringList list = keys.values();
    list.sort();
    return list;
}

void editRow(SoakWorld& world)
{
    const Kind& kind = either(world);
    const QSet<QString>& own = world.deeds.*kind.ownKeys;
    const bool ofOwn = !own.isEmpty() && world.dice.chance(80);
    const QString key = world.dice.pick(sorted(ofOwn ? own : world.deeds.*kind.keys));
    const QString name = world
                             .column(world.settings().*kind.connection,
                                     QString("SELECT name FROM %1 WHERE ukey = '%2'").arg(kind.table, key))
                             .value(0);
    const Entry entry = throwEntry(world, name);
    const auto openKey = std::make_shared<QString>();
    expectDialog(world, kind, entry, false, openKey);
    world.callProgram(kind.editSlot, {name + '-' + key}, {46, 2});
    world.require(*openKey == key, "the dialog shows the row " + *openKey);
    checkEdited(world, kind, entry, key);
}

/// The two questions have one heading.
void expectDeletion(SoakWorld& world, const Kind& kind, const QString& title, int answer)
{
    const char* const buttons[] = {"Effacer", "Effacer\n& Exporter", "Annuler"};
    const QString label = title.section('-', 0, 0);
    world.boxes.expectMessage(QString(), "Suppression d'un navaid", buttons[answer]);
    if (answer == 0) {
        world.expectMessage(kind.deletedTitle, QString(kind.deletedText).arg(title));
    } else if (answer == 1) {
        world.deeds.updates << label;
        world.expectMessage("Suppression/export d'un navaid", QString(kind.deletedText).arg(label) +
                                                                  " et enregistrer pour export \ndans " +
                                                                  shownName(world, label));
    }
}

bool mayDelete(SoakWorld& world)
{
    return !world.mapMoves();
}

void deleteRow(SoakWorld& world)
{
    const Kind& kind = either(world);
    const QStringList titles = world.shownMarkers(kind.family);
    QStringList own;
    for (const QString& title : titles) {
        if ((world.deeds.*kind.ownKeys).contains(title.section('-', 1))) {
            own << title;
        }
    }
    // The demonstration's rows are to last.
    if (own.isEmpty() && (titles.isEmpty() || !world.dice.chance(10))) {
        world.note("nothing to delete");
        return;
    }
    const QString title = world.dice.pick(own.isEmpty() ? titles : own);
    const QString key = title.section('-', 1);
    const int answer = world.dice.below(3);
    const bool isThere = (world.deeds.*kind.keys).contains(key);
    world.note(QString("%1 %2").arg(title).arg(answer));
    if (isThere) {
        expectDeletion(world, kind, title, answer);
    } else {
        world.expectMessage(kind.deletedTitle, kind.missingText);
    }
    if (!world.chooseForMarker(title, kind.deleteWord)) {
        world.boxes.takeComplaints(); // the answers that nobody needs
        world.note("(not there)");
        return;
    }
    if (!isThere || answer == 2) {
        return;
    }
    (world.deeds.*kind.keys).remove(key);
    (world.deeds.*kind.ownKeys).remove(key);
    world.require(!world.shownMarkers(kind.family).contains(title), "the marker is still there");
}

/// What an update line of a kept file does to the keys.
void follow(SoakWorld& world, const QStringList& fields)
{
    const Kind& kind = fields.value(0) == "GEN" ? navaids : waypoints;
    const bool writes = fields.value(2) == "+";
    const QString key = fields.value(writes ? (&kind == &navaids ? 4 : 5) : 4).trimmed();
    if (writes) {
        (world.deeds.*kind.keys) << key;
    } else {
        (world.deeds.*kind.keys).remove(key);
        (world.deeds.*kind.ownKeys).remove(key);
    }
}

bool hasUpdates(SoakWorld& world)
{
    return !world.deeds.updates.isEmpty();
}

void importUpdate(SoakWorld& world)
{
    const QString dialog = "Ouvrir un fichier d'import";
    if (world.dice.chance(15)) {
        world.note("cancelled");
        world.boxes.expectFilesRejected(dialog);
        world.session.action("actImport")->trigger();
        return;
    }
    const QString label = world.dice.pick(sorted(world.deeds.updates));
    const QString path = world.updatePath(label);
    QFile file(path);
    world.require(file.open(QIODevice::ReadOnly), "no file " + path);
    const QString line = QString::fromUtf8(file.readAll());
    file.close();
    world.note(line.left(30));
    world.boxes.expectFiles(dialog, {path});
    // The line of a deleted procedure names a database that the import does not know.
    const bool known = !line.startsWith("ROUTE;");
    world.expectMessage(known ? "Importation" : "Erreur SQL",
                        known ? "Importation terminée\n " + path : "La base de données ROUTE est inconnue.\n" + line);
    world.session.action("actImport")->trigger();
    if (known) {
        follow(world, line.split(';'));
    }
}

} // namespace

QVector<Command> dataCommands()
{
    return {
        {"make row", 2, wantsRows, makeRow},
        {"edit row", 2, nullptr, editRow},
        {"delete row", 3, mayDelete, deleteRow},
        {"import update", 2, hasUpdates, importUpdate},
    };
}
