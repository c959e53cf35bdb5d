#include "positionfields.h"

#include "cdialoglatlon.h"
#include "cglobalvar.h"

#include <QEvent>
#include <QLineEdit>

PositionFields::PositionFields(QLineEdit* latitude, QLineEdit* longitude, QLineEdit* tile, const CGlobalVar& grid,
                               QObject* eventFilter)
    : latitudeField(latitude), longitudeField(longitude), tileField(tile), tileGrid(grid)
{
    latitudeField->installEventFilter(eventFilter);
    longitudeField->installEventFilter(eventFilter);
}

void PositionFields::show(double latSec, double lonSec)
{
    latitudeField->setText(QString::number(latSec, 'f', 2));
    longitudeField->setText(QString::number(lonSec, 'f', 2));
    tileField->setText(QString::number(tileGrid.getTileKey(latSec, lonSec)));
}

void PositionFields::showStored(const QString& latSec, const QString& lonSec, const QString& tile)
{
    latitudeField->setText(latSec);
    longitudeField->setText(lonSec);
    tileField->setText(tile);
}

double PositionFields::latSec() const
{
    return latitudeField->text().toDouble();
}

double PositionFields::lonSec() const
{
    return longitudeField->text().toDouble();
}

bool PositionFields::isPress(const QObject* object, const QEvent* event) const
{
    return (object == latitudeField || object == longitudeField) && event->type() == QEvent::MouseButtonPress;
}

void PositionFields::change(QWidget* parent)
{
    CDialogLatLon dialog(parent);
    dialog.setPosition(latSec(), lonSec());
    if (dialog.exec() == QDialog::Accepted) {
        show(dialog.lat, dialog.lon);
    }
}
