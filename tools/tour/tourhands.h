#pragma once

#include "album.h"
#include "boxresponder.h"
#include "manualalbum.h"
#include "seentexts.h"
#include "windowsession.h"

#include <QPoint>
#include <QString>

#include <memory>

class QTableWidget;

struct Place
{
    double latitude; ///< degrees
    double longitude;
};

/// What is typed for a point in the search, and the key of the row that is meant.
struct FoundPoint
{
    const char* ident;
    const char* key;
};

/// Where a tour's pictures go, and how long it rests.
struct TourOptions
{
    QString pictures;       ///< folder for a picture of each step; empty for none
    QString manualPictures; ///< folder for the manual's pictures; empty for none
    int rest = 400; ///< milliseconds after each hand's move, for the page to draw and the window to lay itself out
};

/// What the steps of a tour are done with: mouse and keys on the real window, answers to its boxes, pictures.
class TourHands
{
public:
    /// The window is not there yet: what it asks at its start can be expected first.
    explicit TourHands(const TourOptions& options);

    /// What the user could read on the way.
    const SeenTexts& seenTexts() const;

protected:
    /// Time for the page to draw and for the window to lay itself out.
    void settle() const;
    /// No window manager of a virtual display makes the window active, and keys go to the active one only.
    void activate();
    /// Remembers the first thing that went wrong.
    void require(bool fulfilled, const QString& what);
    void requireLines(int count);
    /// A picture of a window or a dialog as it stands, and what can be read now.
    void picture(QWidget* widget, const char* name);
    /// Where the first element of the map page that the selector finds lies in the map; empty without one.
    QRect elementPlace(const QString& selector);

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
    /// Answers the next file dialog by a file's name; its picture is taken with the name in it.
    void expectFile(const QString& name, const char* pictureName);
    void clickButton(const QString& name);
    QTableWidget* grid() const;

    const int rest; ///< milliseconds
    BoxResponder boxes;
    Album album;
    ManualAlbum manual;
    SeenTexts texts;
    QString failure;
    std::unique_ptr<WindowSession> session; ///< not there until the tour makes it
};
