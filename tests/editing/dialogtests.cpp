// The dialogs of navaids and waypoints as their tests open them.
#include "dialogtests.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QtTest>

DialogTest::DialogTest(const QStringList& updateFiles) : fileLabels(updateFiles) {}

void DialogTest::init()
{
    boxes.reset(new BoxResponder);
    world.reset(new EditingWorld);
    data.reset(new DataFolder(fileLabels));
}

void DialogTest::cleanup()
{
    closeDialog();
    data.reset();
    world.reset();
    boxes.reset();
}

const QString NavDialogTest::title = QStringLiteral("Nouveau NAVAID");
const QString NavDialogTest::exportTitle = QStringLiteral("Nouveau NAVAID: export");

QString NavDialogTest::storedText(const QString& name)
{
    return name + QStringLiteral(" a été modifié/ajouté à la base GEN.db");
}

NavDialogTest::NavDialogTest(const QStringList& updateFiles) : DialogTest(updateFiles) {}

void NavDialogTest::openRow(const Row& row)
{
    world->sandbox.addNavaid(row);
    dialog.reset(new CDialogNav(world->navaid(row.value("ukey", "RBT").toString()), nullptr));
    present(*dialog);
}

void NavDialogTest::openNew()
{
    dialog.reset(new CDialogNav(172800, 7200, nullptr));
    auto* country = widgetOf<QComboBox>(*dialog, "cbCtry");
    {
        const QSignalBlocker silent(country);
        country->setCurrentIndex(country->findText("FR"));
    }
    present(*dialog);
}

void NavDialogTest::openAbbeville(const QString& typeButton)
{
    dialog.reset(new CDialogNav(172800, 7200, nullptr));
    present(*dialog);
    choose(*dialog, "cbCtry", "FR");
    press(*dialog, typeButton);
    typeInto(*dialog, "leName", "ABBEVILLE");
    typeInto(*dialog, "leIden", "abb");
}

void NavDialogTest::pressOk(const QString& name)
{
    boxes->expectMessage(title, storedText(name));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
}

void NavDialogTest::closeDialog()
{
    dialog.reset();
}

const QString WptDialogTest::title = QStringLiteral("Nouveau WAYPOINT");
const QString WptDialogTest::exportTitle = QStringLiteral("Nouveau WAYPOINT: export");

QString WptDialogTest::storedText(const QString& name)
{
    return name + QStringLiteral(" a été modifié/ajouté à la base WPT.db");
}

WptDialogTest::WptDialogTest(const QStringList& updateFiles) : DialogTest(updateFiles) {}

void WptDialogTest::openRow(const Row& row)
{
    world->sandbox.addWaypoint(row);
    dialog.reset(new CDialogWpt(world->waypoint(row.value("ukey", "BAMES").toString()), nullptr));
    present(*dialog);
}

void WptDialogTest::openNew(double latSec, double lonSec)
{
    dialog.reset(new CDialogWpt(latSec, lonSec, nullptr));
    present(*dialog);
}

void WptDialogTest::openAblan()
{
    openNew(172800, 7200);
    choose(*dialog, "cbCtry", "FR");
    typeInto(*dialog, "leName", "ablan");
}

void WptDialogTest::pressOk(const QString& name)
{
    boxes->expectMessage(title, storedText(name));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
}

void WptDialogTest::closeDialog()
{
    dialog.reset();
}
