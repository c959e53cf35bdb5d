#pragma once

#include "boxresponder.h"
#include "editingworld.h"
#include "sandbox.h"
#include "windowsession.h"

#include <QObject>
#include <QScopedPointer>

/// The window on a simulator with one navaid, "CGO-CGO4FR" at 46.25 north and 2.75 east, and one waypoint at 46.75
/// north and 2.25 east, for the tests of the commands that change them: a window of its own for each.
class NavdataTest : public QObject
{
    Q_OBJECT

protected:
    /// `waypoint`: its name; its key has "FR" behind that. `updateFiles`: the labels of the update files that the tests
    /// write.
    explicit NavdataTest(const QString& waypoint, const QStringList& updateFiles = {});

    /// Loads the page and shows both.
    void load();
    /// Opens the menu at a place of the map and chooses an entry.
    void choose(double latitude, double longitude, const QString& entry);
    /// The titles of the markers that the page has.
    QStringList markers();
    /// How many rows the table "NAV" or "WPT" has.
    int rows(const QString& table);
    /// Another window, on a simulator that has no databases.
    void startWithoutDatabases();

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<DataFolder> data; ///< null in a child process
    QScopedPointer<WindowSession> session;

private slots:
    void init();
    void cleanup();

private:
    QString waypointName;
    QStringList fileLabels;
};
