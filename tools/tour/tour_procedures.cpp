// The steps with stored procedures: a SID made out of a plan, a SID and a STAR copied into another one; and the list of
// the airways through a point.
#include "tour.h"

#include "mainwindow.h"

#include <QComboBox>
#include <QDockWidget>
#include <QInputDialog>
#include <QLineEdit>
#include <QTabBar>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

const char* const sidName = "BALAN1A"; // of no procedure of the demonstration simulator
const char* const starName = "AFRIC1Z";
const Place balan{46.51611, 1.03333};

} // namespace

void Tour::planOf(const QList<FoundPoint>& points)
{
    boxes.expectAnyMessage(QMessageBox::Ok); // the present plan may go
    clickButton("btnNewFlightPlan");
    for (const FoundPoint& point : points) {
        search(point.ident, "btnSearchExact");
        addFound(point.key);
    }
    requireLines(points.size());
}

void Tour::chooseAircraft()
{
    openDock("dockWAircraft");
    auto* type = session->find<QComboBox>("cbAircraftType");
    type->setFocus();
    QTest::keyClick(type, Qt::Key_Down);
    require(session->find<QLineEdit>("leSpeedCruise")->text().toInt() > 0, "the aircraft has no cruise speed");
    auto* altitude = session->find<QLineEdit>("leAltCruise");
    altitude->selectAll();
    QTest::keyClicks(altitude, "24000");
}

/// A plan whose every leg has a speed: they come from the search alone.
void Tour::planBySearch()
{
    planOf({{"LFPO", "LFPO"},
            {"RBT", "RBT4FR"},
            {"AMB", "AMB4FR"},
            {"BALAN", "BALANFR"},
            {"LMG", "LMG4FR"},
            {"LFBO", "LFBO"}});
    zoomTo(6);
    centreOn("AMB", "AMB4FR");
}

void Tour::planDeparture()
{
    planOf({{"LFPO", "LFPO"}, {"RBT", "RBT4FR"}, {"AMB", "AMB4FR"}, {"BALAN", "BALANFR"}});
}

void Tour::storeSid()
{
    boxes.expectDialog("QInputDialog", [this](QDialog* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>();
        require(edit != nullptr, "nowhere to type the name");
        QTest::keyClicks(edit, sidName);
        settle();
        picture(dialog, "box-sid-name");
        dialog->accept();
    });
    expectMessage(QMessageBox::Ok, "box-sid-stored");
    clickButton("btnCreateSID");
    openDock("dockWSid");
    session->find<QTreeWidget>("treeWSid")->expandAll();
}

void Tour::showSid()
{
    planOf({{"LFPO", "LFPO"}, {"LFBO", "LFBO"}});
    zoomTo(7);
    centreOn("AMB", "AMB4FR");
    clickRow(0);
    openDock("dockWSid");
    clickProcedure("treeWSid", sidName);
}

void Tour::addSid()
{
    clickButton("btnAddSid");
    requireLines(5);
}

void Tour::showStar()
{
    centreOn("LFBO", "LFBO");
    clickRow(4);
    openDock("dockWStar");
    clickProcedure("treeWStar", starName);
    // The wheel left the pointer on the airport, whose tool tip would cover the procedure.
    session->page().moveTo(QPoint(20, 20));
}

void Tour::addStar()
{
    clickButton("btnAddStar");
    requireLines(7);
}

void Tour::listAirways()
{
    centreOn("BALAN", "BALANFR");
    openMenuAt(session->page().pointOf(balan.latitude, balan.longitude));
    boxes.expectDialog("QInputDialog", [this](QDialog* dialog) {
        settle();
        picture(dialog, "box-airways");
        dialog->accept();
    });
    chooseEntry("airways");
}

void Tour::openDock(const QString& name)
{
    const QString title = session->find<QDockWidget>(name)->windowTitle();
    const QList<QTabBar*> bars = session->window().findChildren<QTabBar*>();
    for (QTabBar* bar : bars) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            if (bar->tabText(tab) == title) {
                QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(tab).center());
                settle();
                return;
            }
        }
    }
    require(false, "no tab " + title);
}

void Tour::clickRow(int row)
{
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid()->visualItemRect(grid()->item(row, 1)).center());
}

void Tour::clickProcedure(const QString& tree, const QString& name)
{
    auto* widget = session->find<QTreeWidget>(tree);
    const QList<QTreeWidgetItem*> found = widget->findItems(name, Qt::MatchExactly);
    require(found.size() == 1, QString("%1 found %2 times").arg(name).arg(found.size()));
    if (!found.isEmpty()) {
        found.first()->setExpanded(true);
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier,
                          widget->visualItemRect(found.first()).center());
    }
}
