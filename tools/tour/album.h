#pragma once

#include <QString>

class QWidget;

/// Makes a folder, and empties it of the pictures of an earlier tour by the pattern of their names. Its absolute path;
/// empty for an empty name.
QString emptiedFolder(const QString& name, const QString& pattern);

/// Saves pictures of widgets under one number after the other: "01-start.png", "02-layers.png".
class Album
{
public:
    /// Empties the folder. An empty name makes an album that keeps nothing.
    explicit Album(const QString& folder);

    /// Takes a picture of a window or a dialog as it stands. False when it cannot be saved.
    bool take(QWidget* widget, const QString& name);

private:
    QString folder;
    int taken = 0;
};
