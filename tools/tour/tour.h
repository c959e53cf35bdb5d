#pragma once

#include "album.h"
#include "boxresponder.h"
#include "windowsession.h"

#include <QPoint>
#include <QString>
#include <QStringList>

class QTableWidget;

/// The program's main job as a pilot does it, from the start to a plan that is saved and loaded again: real events on
/// the real window, and a picture after each step. It flies from Paris Orly to Toulouse Blagnac on the demonstration
/// simulator's data.
class Tour
{
public:
    explicit Tour(const QString& pictures);

    /// Takes the steps in their order, up to the first that does not go as it should; that one is told on the standard
    /// error. True when all of them did.
    bool take();

private:
    struct Step
    {
        const char* name; ///< of its picture
        void (Tour::*work)();
    };
    static const QVector<Step>& steps();

    void start();
    void searchExact();
    void searchNear();
    void hideLayers();
    void openMarkerMenu();
    void addDeparture();
    void showRunways();
    void dragStart();
    void turnStart();
    void addNavaidFromMap();
    void addNavaidFromSearch();
    void openMapMenu();
    void addOwnPoint();
    void openPopup();
    void addWaypointFromMap();
    void addDestination();
    void seeWholePlan();
    void typeAltitude();
    void leaveAltitude();
    void save();
    void setStart();
    void startNew();
    void load();

    /// Remembers the first thing that went wrong.
    void require(bool fulfilled, const QString& what);
    void requireLines(int count);
    void picture(QWidget* widget, const char* name);

    void search(const QString& text, const QString& button);
    /// Picks the item of the last search with this key; a missing one goes wrong.
    void pickFound(const QString& key);
    void addFound(const QString& key);
    void centreOn(const QString& ident, const QString& key);
    void zoomTo(double zoom);
    void openMenuAt(const QPoint& place);
    /// Chooses the entry of the page's open menu that the page's words know under this name.
    void chooseEntry(const QString& word);
    /// Answers the next message box; its picture is taken first.
    void expectMessage(QMessageBox::StandardButton button, const char* pictureName);
    void clickButton(const QString& name);
    QTableWidget* grid() const;

    WindowSession session;
    BoxResponder boxes;
    Album album;
    QString failure;
};
