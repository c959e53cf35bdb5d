// What the steps of the tour have in common.
#include "tourhands.h"

#include "mainwindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

/// The middle of a menu entry on the page; null without one.
const char* const entryPlace = R"js(
    (function (text) {
        var found = Array.from(document.querySelectorAll('#menu .menu-entry')).filter(function (entry) {
            return entry.textContent === text && entry.offsetWidth > 0;
        });
        if (found.length !== 1)
            return null;
        var box = found[0].getBoundingClientRect();
        return [box.left + box.width / 2, box.top + box.height / 2];
    })(pageWords['%1']))js";

/// The box of the first element that a selector finds, in the map; null without one.
const char* const elementBox = R"js(
    (function (element) {
        var box = element && element.getBoundingClientRect();
        return box && [box.left, box.top, box.width, box.height];
    })(document.querySelector('%1')))js";

} // namespace

TourHands::TourHands(const TourOptions& options)
    : rest(options.rest), album(options.pictures), manual(options.manualPictures)
{
}

const SeenTexts& TourHands::seenTexts() const
{
    return texts;
}

void TourHands::settle() const
{
    QTest::qWait(rest);
}

void TourHands::activate()
{
    QApplication::setActiveWindow(&session->window());
}

void TourHands::require(bool fulfilled, const QString& what)
{
    if (!fulfilled && failure.isEmpty()) {
        failure = what;
    }
}

void TourHands::requireLines(int count)
{
    settle();
    require(grid()->rowCount() == count,
            QString("%1 lines in the plan instead of %2").arg(grid()->rowCount()).arg(count));
}

void TourHands::picture(QWidget* widget, const char* name)
{
    texts.readAll();
    require(album.take(widget, name), "the picture cannot be written");
    const bool taken = manual.take(widget, name, [this](const QString& selector) { return elementPlace(selector); });
    require(taken, "the manual's picture cannot be taken");
}

QRect TourHands::elementPlace(const QString& selector)
{
    const QVariantList box = session->page().evaluate(QString(elementBox).arg(selector)).toList();
    return box.size() == 4 ? QRect(box[0].toInt(), box[1].toInt(), box[2].toInt(), box[3].toInt()) : QRect();
}

void TourHands::search(const QString& text, const QString& button)
{
    auto* edit = session->find<QLineEdit>("searchData");
    edit->setFocus();
    edit->clear();
    QTest::keyClicks(edit, text);
    clickButton(button);
}

void TourHands::pickFound(const QString& key)
{
    constexpr int keyColumn = 4;
    auto* tree = session->find<QTreeWidget>("treeWFound");
    const QList<QTreeWidgetItem*> items = tree->findItems(key, Qt::MatchExactly, keyColumn);
    require(items.size() == 1, QString("%1 found %2 times").arg(key).arg(items.size()));
    if (!items.isEmpty()) {
        tree->setCurrentItem(items.first());
        tree->scrollToItem(items.first());
    }
}

void TourHands::addFound(const QString& key)
{
    pickFound(key);
    auto* tree = session->find<QTreeWidget>("treeWFound");
    const QPoint place = tree->visualItemRect(tree->currentItem()).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void TourHands::centreOn(const QString& ident, const QString& key)
{
    search(ident, "btnSearchExact");
    pickFound(key);
    session->find<QTreeWidget>("treeWFound")->actions().first()->trigger();
    settle();
}

void TourHands::zoomTo(double zoom)
{
    constexpr int notch = 120;
    constexpr int most = 20;
    auto* view = session->find<QWidget>("map");
    for (int i = 0; i < most; ++i) {
        const double now = session->page().evaluate("map.getZoom()").toDouble();
        if (qFuzzyCompare(now, zoom)) {
            return;
        }
        session->page().wheel(view->rect().center(), now < zoom ? notch : -notch);
        settle();
    }
    require(false, QString("the wheel did not bring the map to zoom %1").arg(zoom));
}

void TourHands::openMenuAt(const QPoint& place)
{
    session->page().contextMenu(place);
    settle();
    require(session->page().evaluate("!document.getElementById('menu').hidden").toBool(), "no menu opened on the page");
}

void TourHands::chooseEntry(const QString& word)
{
    const QVariantList place = session->page().evaluate(QString(entryPlace).arg(word)).toList();
    require(place.size() == 2, QString("the menu has no entry \"%1\"").arg(word));
    if (place.size() == 2) {
        session->page().click(QPoint(place.at(0).toInt(), place.at(1).toInt()));
    }
}

void TourHands::expectMessage(QMessageBox::StandardButton button, const char* pictureName)
{
    boxes.expectDialog("QMessageBox", [this, button, pictureName](QDialog* dialog) {
        settle();
        picture(dialog, pictureName);
        qobject_cast<QMessageBox*>(dialog)->button(button)->click();
    });
}

void TourHands::expectFile(const QString& name, const char* pictureName)
{
    boxes.expectDialog("QFileDialog", [this, name, pictureName](QDialog* dialog) {
        const QFileInfo file(name);
        if (file.isAbsolute()) {
            qobject_cast<QFileDialog*>(dialog)->setDirectory(file.path());
        }
        settle();
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file.fileName());
        picture(dialog, pictureName);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

void TourHands::clickButton(const QString& name)
{
    QTest::mouseClick(session->find<QPushButton>(name), Qt::LeftButton);
}

QTableWidget* TourHands::grid() const
{
    return session->find<QTableWidget>("fltplnGrid");
}
