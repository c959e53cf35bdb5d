#pragma once

#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

class QWebView;
class QWidget;

/// Records what the map page is told, and plays the user's mouse on it.
///
/// Made before the page has loaded, it records the feed too: the page's functions are wrapped as soon as its scripts
/// have run and before the program is told that the load is finished. A call is recorded as it would be written, with
/// a position as `LatLng(48.72528,2.35944)`, a known list by its name, texts between double quotes and no blanks:
/// `addAPTMarker(LatLng(48.72528,2.35944),"LFPO",1,"...")`, `VORMgr.addMarkers(listVOR)`, `map.setZoom(6)`.
/// Calls that the page makes to its own functions are recorded as well.
class PageProbe : public QObject
{
    Q_OBJECT

public:
    /// Finds the view "map" in the window.
    explicit PageProbe(QWidget* window);

    /// Runs the event loop until the window's debug text holds "Chargement terminé", in the program's language,
    /// whatever stands behind it. False after `timeout` ms.
    bool waitUntilLoaded(int timeout = 120000);

    /// All calls so far, or those of one function, as `addAPTMarker` or `map.setCenter`.
    QStringList calls();
    QStringList calls(const QString& function);
    /// Forgets the calls so far.
    void clear();

    /// Evaluates a script in the page. A script that throws gives an invalid QVariant.
    QVariant evaluate(const QString& script);
    /// Titles of the markers of a list of the page, such as "listVOR".
    QStringList titles(const QString& list);

    /// Where a position (degrees) lies in the view, by the map's centre and zoom.
    QPoint pointOf(double latitude, double longitude);
    /// Moves the mouse there, and presses and releases the left button.
    void click(const QPoint& point);
    /// Moves the mouse there and nothing more.
    void moveTo(const QPoint& point);
    /// Two clicks, the second of which is a double click to the page.
    void doubleClick(const QPoint& point);
    void drag(const QPoint& from, const QPoint& to);
    void wheel(const QPoint& point, int delta);
    /// The right button's menu: the page sees `contextmenu`.
    void contextMenu(const QPoint& point);
    /// The texts of the entries of the open menu and of its open submenus behind them; none when there is no menu.
    QStringList menuEntries();
    /// Clicks an entry of the open menu, that of the innermost submenu if several have this text. False when it is not
    /// there.
    bool chooseEntry(const QString& text);
    /// The text of the pop-up on the map; empty when there is none.
    QString popupText();

private slots:
    void installOnNewPage();

private:
    QWidget* window;
    QWebView* view;
};
