#pragma once

class CGlobalVar;
class QEvent;
class QLineEdit;
class QObject;
class QString;
class QWidget;

/// The position of a row: latitude and longitude as texts in arc seconds, which a press of the mouse opens in a dialog
/// of their own, and the tile that follows from them.
class PositionFields
{
public:
    /// `eventFilter` is the dialog that gets to see the presses.
    PositionFields(QLineEdit* latitude, QLineEdit* longitude, QLineEdit* tile, const CGlobalVar& grid,
                   QObject* eventFilter);

    /// Shows arc seconds with two decimals, and the tile of the full values.
    void show(double latSec, double lonSec);
    /// Shows the texts of a row as they are stored.
    void showStored(const QString& latSec, const QString& lonSec, const QString& tile);
    /// Arc seconds as the texts have them; a text that is no number gives 0.
    double latSec() const;
    double lonSec() const;

    bool isPress(const QObject* object, const QEvent* event) const;
    /// Lets the user type another position. Cancel changes nothing.
    void change(QWidget* parent);

private:
    QLineEdit* latitudeField;
    QLineEdit* longitudeField;
    QLineEdit* tileField;
    const CGlobalVar& tileGrid;
};
