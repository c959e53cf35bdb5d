#pragma once

#include <QString>

class QWidget;

/// Saves pictures of widgets under one number after the other: "01-start.png", "02-layers.png".
class Album
{
public:
    /// Makes the folder, and empties it of the pictures of an earlier tour. An empty name makes an album that keeps
    /// nothing.
    explicit Album(const QString& folder);

    /// Takes a picture of a window or a dialog as it stands. False when it cannot be saved.
    bool take(QWidget* widget, const QString& name);

private:
    QString folder;
    int taken = 0;
};
