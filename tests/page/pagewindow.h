#pragma once

#include "mywebpage.h"
#include "pageprobe.h"
#include "programside.h"

#include <QColor>
#include <QScopedPointer>
#include <QUrl>
#include <QWebView>
#include <QWidget>

/// The page with its messages to the console, where the engine reports every fault of a script, be it a listener's of
/// the page or one that a test evaluates. Any message fails the running test at once, for what a faulty script gives
/// reads as 0, false or empty, which may be the very thing that a test awaits.
class LoudWebPage : public myWebPage
{
    Q_OBJECT

public:
    using myWebPage::myWebPage;
    QStringList messages;

    /// Lets the messages that hold this text pass from now on. That they came is the test's to verify.
    void expectFault(const QString& part);

protected:
    void javaScriptConsoleMessage(const QString& message, int lineNumber, const QString& sourceID) override;

private:
    QStringList expected;
};

/// A map page in a view of 800 by 600 pixels, with the program's side exposed as "mainWindow".
class PageWindow : public QWidget
{
    Q_OBJECT

public:
    /// The program's side may be null: a page without a program. It is not owned.
    explicit PageWindow(ProgramSide* program);

    /// Loads the page beside this test and waits for the end. False when it does not load.
    bool load(const QString& file = "gm_trajector_fr.html");
    bool load(const QUrl& url);

    /// Evaluates a script as the program does. A script that throws fails the running test.
    QVariant run(const QString& script);
    /// Waits until what the last scripts changed has been painted.
    void settle();
    /// The colour that shows at a position (degrees), after settling.
    QColor colourAt(double latitude, double longitude);
    /// How many pixels of exactly this colour lie within some pixels of a position.
    int pixelsAround(double latitude, double longitude, int reach, const QColor& colour);

    /// Closes the context menu as a press beside it does.
    void closeMenu();
    /// Opens the context menu at a position and gives its entries; empty when none opens.
    QStringList menuAt(double latitude, double longitude);
    QStringList menuEntries();
    /// Clicks an entry of the open menu with the mouse. False when it is not there.
    bool chooseEntry(const QString& text);
    void click(double latitude, double longitude);
    /// Presses a key while the page has the keyboard.
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The text of the pop-up on the map; empty when there is none.
    QString popupText();

    QWebView* view;
    LoudWebPage* page;
    QScopedPointer<PageProbe> mouse;
    QList<QUrl> requests; ///< everything that the page has asked of the network

private:
    QImage picture();
};
