// The flight's trail cleared, and the steps that change the navigation data: a waypoint made, deleted and exported, and
// its update file imported.
#include "tour.h"

#include "mainwindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace {

const char* const waypointName = "VALON"; // of no row of the demonstration simulator
const char* const waypointCountry = "FR";
const Place emptyPlace{47.602, 1.598}; // nothing of the map lies there
const Place waypointPlace{47.6, 1.6};

struct TypedNumber
{
    const char* box;
    const char* keys;
};

// The press on the map is as fine as a point of the screen; the dialog's numbers are the waypoint's place.
const TypedNumber positionNumbers[] = {
    {"sbLatDeg", "47"}, {"sbLatMin", "36"}, {"sbLatSec", "0"}, {"sbLonDeg", "1"}, {"sbLonMin", "36"}, {"sbLonSec", "0"},
};

/// A dialog's widget; its absence ends the tour.
template <typename T>
T* widgetOf(const QDialog* dialog, const char* name)
{
    T* widget = dialog->findChild<T*>(name);
    if (widget == nullptr) {
        qFatal("the dialog has no \"%s\" of this class", name);
    }
    return widget;
}

void chooseItem(QComboBox* box, const QString& item)
{
    const int wanted = box->findText(item);
    box->setFocus();
    // The keyboard's search begins anew after a pause; single steps need none.
    for (int left = qAbs(wanted - box->currentIndex()); wanted >= 0 && left > 0; --left) {
        QTest::keyClick(box, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    }
}

/// Presses on the mark: such a button does not listen in the empty space behind its text.
void mark(QAbstractButton* button)
{
    constexpr int markAt = 8; // pixels
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(markAt, button->height() / 2));
}

} // namespace

QString Tour::updateFile()
{
    return QString("%1/Data/%2.CSV").arg(QCoreApplication::applicationDirPath(), waypointName);
}

void Tour::clearTrail()
{
    centreOn("AMB", "AMB4FR");
    zoomTo(9);
    openMenuAt(session->page().pointOf(emptyPlace.latitude, emptyPlace.longitude));
    chooseEntry("clearTrail");
    require(!session->page().evaluate("page.hasTrail()").toBool(), "the trail is still there");
}

void Tour::openNewNavaid()
{
    openMenuAt(session->page().pointOf(emptyPlace.latitude, emptyPlace.longitude));
    boxes.expectDialog("CDialogNav", [this](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        settle();
        picture(dialog, "box-navaid");
        QTest::mouseClick(widgetOf<QPushButton>(dialog, "pbCancel"), Qt::LeftButton);
    });
    chooseEntry("newNavaid");
    activate();
}

void Tour::openEmptyMapMenu()
{
    // The program does not make the folder of the update files.
    const QString folder = QFileInfo(updateFile()).path();
    require(QDir().mkpath(folder), "no folder " + folder);
    QFile::remove(updateFile());
    centreOn("AMB", "AMB4FR");
    zoomTo(9);
    openMenuAt(session->page().pointOf(emptyPlace.latitude, emptyPlace.longitude));
}

void Tour::makeWaypoint()
{
    boxes.expectDialog("CDialogWpt", [this](QDialog* dialog) { fillWaypoint(dialog); });
    boxes.expectDialog("CDialogLatLon", [this](QDialog* dialog) { fillPosition(dialog); });
    expectMessage(QMessageBox::Ok, "box-waypoint-stored");
    expectMessage(QMessageBox::Ok, "box-waypoint-exported");
    chooseEntry("newWaypoint");
    activate();
    require(QFile::exists(updateFile()), "the waypoint was not exported");
}

void Tour::fillWaypoint(QDialog* dialog)
{
    QApplication::setActiveWindow(dialog);
    auto* country = widgetOf<QComboBox>(dialog, "cbCtry");
    chooseItem(country, waypointCountry);
    require(country->currentText() == waypointCountry, "the country was not chosen");
    auto* name = widgetOf<QLineEdit>(dialog, "leName");
    name->setFocus();
    QTest::keyClicks(name, QString(waypointName).toLower());
    mark(widgetOf<QRadioButton>(dialog, "rbLow"));
    mark(widgetOf<QRadioButton>(dialog, "rbNamed"));
    mark(widgetOf<QCheckBox>(dialog, "cbSaveCSV"));
    QTest::mouseClick(widgetOf<QLineEdit>(dialog, "sbLat"), Qt::LeftButton);
    QApplication::setActiveWindow(dialog);
    settle();
    picture(dialog, "box-waypoint");
    QTest::mouseClick(widgetOf<QPushButton>(dialog, "pbOK"), Qt::LeftButton);
}

void Tour::fillPosition(QDialog* dialog)
{
    QApplication::setActiveWindow(dialog);
    for (const TypedNumber& number : positionNumbers) {
        auto* box = widgetOf<QAbstractSpinBox>(dialog, number.box);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, number.keys);
        QTest::keyClick(box, Qt::Key_Tab);
    }
    settle();
    picture(dialog, "box-position");
    dialog->accept();
}

void Tour::openNewPopup()
{
    session->page().click(session->page().pointOf(waypointPlace.latitude, waypointPlace.longitude));
    settle();
    require(session->page().popupText().contains(waypointName), "the new waypoint has no pop-up");
}

void Tour::openWaypointMenu()
{
    openMenuAt(session->page().pointOf(waypointPlace.latitude, waypointPlace.longitude));
}

void Tour::deleteWaypoint()
{
    QFile::remove(updateFile());
    expectMessage(QMessageBox::Save, "box-delete-question");
    expectMessage(QMessageBox::Ok, "box-deleted");
    chooseEntry("deleteWaypoint");
    require(QFile::exists(updateFile()), "the deletion was not exported");
}

void Tour::importUpdate()
{
    auto* bar = session->find<QMenuBar>("menuBar");
    auto* menu = session->find<QMenu>("menuImport");
    expectFile(updateFile(), "box-import");
    expectMessage(QMessageBox::Ok, "box-imported");
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(menu->menuAction()).center());
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                      menu->actionGeometry(session->action("actImport")).center());
}
