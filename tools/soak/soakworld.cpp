// The window, its answers and its log, and what the commands touch it with.
#include "soakworld.h"

#include "allowedmessages.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTabBar>
#include <QTableWidget>
#include <QTreeWidget>
#include <QWebPage>
#include <QWebView>
#include <QtTest>

namespace {

constexpr int patience = 20000; // milliseconds

/// Numbers in it are written as the page reads them.
QString scriptNumber(double value)
{
    return QString::number(value, 'g', 15);
}

QString scriptText(QString text)
{
    return '"' + text.replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

/// The window works in its language, so an entry is known by the page's word for it: by the text of a marker's submenu
/// (or none), then by that of the command. What is clicked next is given back as [x, y]; null when it is not there.
const char* const entryFinder = R"js((function (marker, word) {
    var panels = Array.from(document.querySelectorAll('.menu:not([hidden])'));
    var found = function (panel, text) {
        return Array.from(panel.querySelectorAll('.menu-entry:not(.greyed)')).filter(function (entry) {
            return entry.querySelector('.menu-label').textContent === text;
        });
    };
    var entries = panels.length ? found(panels[panels.length - 1], word) : [];
    if (panels.length === 1 && entries.length === 0 && marker)
        entries = found(panels[0], marker);
    if (entries.length !== 1)
        return null;
    var box = entries[0].getBoundingClientRect();
    return [box.left + 12, box.top + box.height / 2];
})(%1, %2))js";

} // namespace

SoakWorld::SoakWorld(const QString& simulatorRoot, unsigned seed) : dice(seed), root(simulatorRoot)
{
    const auto* view = session.find<QWebView>("map");
    connect(view->page(), &QWebPage::consoleMessageReceived, this,
            [this](QWebPage::MessageSource, QWebPage::MessageLevel, const QString& message, int line,
                   const QString& source) { pageFaults << QString("%1:%2: %3").arg(source).arg(line).arg(message); });
}

SoakWorld::~SoakWorld()
{
    for (const QString& label : deeds.updates) {
        QFile::remove(updatePath(label));
    }
}

bool SoakWorld::load()
{
    session.window().resize(1320, 1080);
    if (!session.load()) {
        return false;
    }
    // An eye that sees nothing would find no fault for half an hour.
    evaluate("noSuchFunction()");
    require(pageFaults.size() == 1 && pageFaults.first().contains("noSuchFunction"),
            "a fault of the page's scripts goes unseen");
    pageFaults.clear();
    const QStringList navaids = column(settings().dbGEN, "SELECT ukey FROM NAV");
    const QStringList waypoints = column(settings().dbWPT, "SELECT ukey FROM WPT");
    deeds.navaids = QSet<QString>(navaids.begin(), navaids.end());
    deeds.waypoints = QSet<QString>(waypoints.begin(), waypoints.end());
    for (const QVariantList& row : rows(settings().dbRTE, "SELECT strm, COUNT(*) FROM SIDSTAR GROUP BY strm")) {
        deeds.procedures[row.at(0).toString()] = row.at(1).toInt();
    }
    return true;
}

void SoakWorld::require(bool fulfilled, const QString& what)
{
    if (!fulfilled && firstFailure.isEmpty()) {
        firstFailure = what;
    }
}

QString SoakWorld::takeNotes()
{
    const QString text = details.join(' ');
    details.clear();
    return text;
}

CNavGlobalVar& SoakWorld::settings() const
{
    return *CNavGlobalVar::instance();
}

CFlightPlan& SoakWorld::plan() const
{
    return *settings().flightPlan;
}

int SoakWorld::planSize() const
{
    return plan().lines.size();
}

QStringList SoakWorld::planIdents() const
{
    QStringList idents;
    for (const CFpLinePtr& line : plan().lines) {
        idents << line->iden;
    }
    return idents;
}

PlanTexts SoakWorld::planTexts() const
{
    PlanTexts texts;
    for (const CFpLinePtr& line : plan().lines) {
        texts << QStringList{line->name,
                             line->iden,
                             QString::number(line->latS, 'f', 3),
                             QString::number(line->lonS, 'f', 3),
                             QString::number(line->elev),
                             line->dbKey,
                             line->usage,
                             QString::number(line->altd),
                             line->tkof,
                             line->land,
                             line->mark};
    }
    return texts;
}

QTableWidget* SoakWorld::grid() const
{
    return session.find<QTableWidget>("fltplnGrid");
}

QTreeWidget* SoakWorld::tree(const QString& name) const
{
    return session.find<QTreeWidget>(name);
}

QVector<QVariantList> SoakWorld::rows(const QString& connection, const QString& statement) const
{
    QSqlQuery query(QSqlDatabase::database(connection));
    query.setForwardOnly(true);
    QVector<QVariantList> all;
    query.exec(statement);
    while (query.next()) {
        QVariantList row;
        for (int i = 0; i < query.record().count(); ++i) {
            row << query.value(i);
        }
        all << row;
    }
    return all;
}

QStringList SoakWorld::column(const QString& connection, const QString& statement) const
{
    QStringList values;
    for (const QVariantList& row : rows(connection, statement)) {
        values << row.first().toString();
    }
    return values;
}

QString SoakWorld::path(const QString& relative) const
{
    return QDir(root).filePath(relative);
}

QString SoakWorld::updatePath(const QString& label) const
{
    return QString("%1/Data/%2.CSV").arg(QCoreApplication::applicationDirPath(), label);
}

bool SoakWorld::docksAreShown() const
{
    return !session.find<QDockWidget>("dockWFlightPlan")->isHidden();
}

bool SoakWorld::mapMoves() const
{
    return deeds.tracing && session.find<QPushButton>("pbCenterAcft")->isChecked();
}

void SoakWorld::takeKeyboard()
{
    QApplication::setActiveWindow(&session.window());
}

void SoakWorld::typeOn(const QString& keys)
{
    QWidget* widget = QApplication::focusWidget();
    require(widget != nullptr, "nothing has the keyboard");
    for (const QChar key : keys) {
        if (widget != nullptr) {
            QTest::keyClick(widget, key.toLatin1());
        }
    }
}

void SoakWorld::clickButton(const QString& name)
{
    auto* button = session.find<QPushButton>(name);
    require(button->isVisible(), "a button that is not to be seen is wanted: " + name);
    QTest::mouseClick(button, Qt::LeftButton);
}

void SoakWorld::openDock(const QString& name)
{
    const QString title = session.find<QDockWidget>(name)->windowTitle();
    for (QTabBar* bar : session.window().findChildren<QTabBar*>()) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            if (bar->tabText(tab) == title) {
                QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(tab).center());
                // What the dock tells the page, it tells with its next events.
                QCoreApplication::processEvents();
                return;
            }
        }
    }
    require(false, "no tab " + title);
}

void SoakWorld::clickCell(int row, int column)
{
    const QTableWidgetItem* item = grid()->item(row, column);
    if (item == nullptr) {
        require(false, QString("no cell %1, %2").arg(row).arg(column));
        return;
    }
    grid()->scrollToItem(item);
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::NoModifier, grid()->visualItemRect(item).center());
}

void SoakWorld::clickItem(QTreeWidget* widget, QTreeWidgetItem* item)
{
    widget->scrollToItem(item); // opens what it lies in
    QRect place = widget->visualItemRect(item);
    // Its text may be cut off at the right.
    place.setRight(qMin(place.right(), widget->viewport()->rect().right()));
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
}

void SoakWorld::callProgram(const QString& slot, const QStringList& texts, const QList<double>& numbers)
{
    QStringList values;
    for (const QString& text : texts) {
        values << scriptText(text);
    }
    for (double number : numbers) {
        values << scriptNumber(number);
    }
    evaluate(QString("mainWindow.%1(%2)").arg(slot, values.join(", ")));
}

QVariant SoakWorld::evaluate(const QString& script)
{
    return session.page().evaluate(script);
}

void SoakWorld::clearView(double latitude, double longitude, double zoom)
{
    evaluate(QString("page.closeMenu(); page.closePopup(); page.clearMeasure(); map.setZoom(%1);"
                     "map.setCenter(new google.maps.LatLng(%2, %3))")
                 .arg(scriptNumber(zoom), scriptNumber(latitude), scriptNumber(longitude)));
    const bool there = QTest::qWaitFor(
        [&] {
            return qAbs(evaluate("map.getCenter().lat()").toDouble() - latitude) < 1e-4 &&
                   qAbs(evaluate("map.getZoom()").toDouble() - zoom) < 1e-4;
        },
        patience);
    require(there, "the map does not go where it is sent");
}

bool SoakWorld::chooseEntry(const QString& marker, const QString& word)
{
    const QString text = evaluate("pageWords." + word).toString();
    // A marker among others has its commands one level down.
    for (int level = 0; level < 2; ++level) {
        const QVariantList place = evaluate(QString(entryFinder).arg(scriptText(marker), scriptText(text))).toList();
        if (place.size() != 2) {
            break;
        }
        session.page().click(QPoint(place.at(0).toInt(), place.at(1).toInt()));
        if (!evaluate("page.menuIsOpen()").toBool()) {
            return true;
        }
    }
    evaluate("page.closeMenu()");
    return false;
}

bool SoakWorld::chooseForMarker(const QString& title, const QString& word)
{
    constexpr double near = 13.0;
    const QVariantList found = evaluate(QString("(function (title) {"
                                                "    var found = null;"
                                                "    page.layers.forEach(layer => layer.list.forEach(marker => {"
                                                "        if (marker.title === title)"
                                                "            found = marker;"
                                                "    }));"
                                                "    return found && [page.describe(found).head,"
                                                "        found.position.lat(), found.position.lng()];"
                                                "})(%1)")
                                            .arg(scriptText(title)))
                                   .toList();
    if (found.size() != 3) {
        return false;
    }
    clearView(found.at(1).toDouble(), found.at(2).toDouble(), near);
    session.page().contextMenu(session.page().pointOf(found.at(1).toDouble(), found.at(2).toDouble()));
    return chooseEntry(found.at(0).toString(), word);
}

bool SoakWorld::chooseForPlace(double latitude, double longitude, const QString& word)
{
    constexpr double near = 12.0;
    clearView(latitude, longitude, near);
    session.page().contextMenu(session.page().pointOf(latitude, longitude));
    return chooseEntry(evaluate("pageWords.mapMenu").toString(), word);
}

QStringList SoakWorld::shownMarkers(const QString& family)
{
    return evaluate(QString("[].concat.apply([], page.layers.map(layer => layer.list.filter(marker =>"
                            "marker.family === '%1' && layer.manager().draws(marker)).map(marker => marker.title)))")
                        .arg(family))
        .toStringList();
}

void SoakWorld::expectMessage(const QString& title, const QString& text, QMessageBox::StandardButton button)
{
    boxes.expectMessage(title, text, button);
}

void SoakWorld::expectTitled(const QString& title)
{
    boxes.expectDialog("QMessageBox", [this, title](QDialog* dialog) {
        require(dialog->windowTitle() == title,
                QString("box \"%1\" instead of \"%2\"").arg(dialog->windowTitle(), title));
        dialog->accept();
    });
}

QStringList SoakWorld::takeComplaints()
{
    QStringList complaints = boxes.takeComplaints();
    boxes.forgetSeen();
    for (const QtMsgType type : {QtWarningMsg, QtCriticalMsg}) {
        for (const QString& message : log.messages(type)) {
            const QString reason = reasonToAllow(message);
            if (reason.isEmpty()) {
                complaints << "message: " + message;
            } else {
                ++allowedMessages[reason];
            }
        }
    }
    log.clear();
    for (const QString& fault : pageFaults) {
        complaints << "the page reports " + fault;
    }
    pageFaults.clear();
    session.page().clear();
    return complaints;
}
