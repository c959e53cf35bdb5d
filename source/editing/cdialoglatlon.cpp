#include "cdialoglatlon.h"
#include "ui_cdialoglatlon.h"

#include "positions.h"

#include <QSignalBlocker>

#include <cmath>

namespace {

constexpr int southOrWest = 1; ///< item of both hemisphere boxes

// The numbers in a row of the form.
struct AngleBoxes
{
    QComboBox* hemisphere;
    QSpinBox* degrees;
    QSpinBox* minutes;
    QDoubleSpinBox* seconds;
};

AngleBoxes latitudeBoxes(const Ui::CDialogLatLon& ui)
{
    return {ui.cbNS, ui.sbLatDeg, ui.sbLatMin, ui.sbLatSec};
}

AngleBoxes longitudeBoxes(const Ui::CDialogLatLon& ui)
{
    return {ui.cbEW, ui.sbLonDeg, ui.sbLonMin, ui.sbLonSec};
}

// Zero counts as south and as west. Seconds that round to 60 stay 60. Silent: a box that has the focus would take its
// new value for a typed one.
void showAngle(const AngleBoxes& boxes, double signedDegrees)
{
    const bool northOrEast = signedDegrees > 0.0;
    const double degrees = northOrEast ? signedDegrees : -signedDegrees;
    const double minutes = (degrees - std::floor(degrees)) * 60.0;
    const double seconds = (minutes - std::floor(minutes)) * 60.0;
    const QSignalBlocker silent[] = {QSignalBlocker(boxes.hemisphere), QSignalBlocker(boxes.degrees),
                                     QSignalBlocker(boxes.minutes), QSignalBlocker(boxes.seconds)};
    boxes.hemisphere->setCurrentIndex(northOrEast ? 0 : southOrWest);
    boxes.degrees->setValue(truncatedInt(degrees));
    boxes.minutes->setValue(truncatedInt(std::floor(minutes)));
    boxes.seconds->setValue(std::isfinite(seconds) ? seconds : 0.0);
}

double typedAngle(const AngleBoxes& boxes)
{
    return std::abs(boxes.degrees->value()) * arcSecondsPerDegree + boxes.minutes->value() * 60.0 +
           boxes.seconds->value();
}

void showNumbers(QLineEdit* arcSeconds, QLineEdit* degrees, double value)
{
    arcSeconds->setText(QString::number(value, 'f', 2));
    degrees->setText(QStringLiteral("%1°").arg(value / arcSecondsPerDegree, 0, 'f', 5));
}

} // namespace

CDialogLatLon::CDialogLatLon(QWidget* parent) : QDialog(parent), ui(std::make_unique<Ui::CDialogLatLon>())
{
    ui->setupUi(this);
}

CDialogLatLon::~CDialogLatLon() = default;

void CDialogLatLon::setPosition(double latSec, double lonSec)
{
    lat = latSec;
    lon = lonSec;
    showLat();
    showAngle(latitudeBoxes(*ui), lat / arcSecondsPerDegree);
    showLon();
    showAngle(longitudeBoxes(*ui), wrapScriptDegrees(lon / arcSecondsPerDegree));
}

void CDialogLatLon::showLat()
{
    showNumbers(ui->edLat, ui->edLat_2, lat);
}

void CDialogLatLon::showLon()
{
    showNumbers(ui->edLon, ui->edLon_2, lon);
}

void CDialogLatLon::updateLat(double value)
{
    lat = ui->cbNS->currentIndex() == southOrWest ? -value : value;
    showLat();
}

// Unlike a south latitude a west longitude is no negative number but a place in the whole circle.
void CDialogLatLon::updateLon(double value)
{
    const double angle = std::fabs(wrapHalfCircleArcSeconds(value));
    lon = ui->cbEW->currentIndex() == southOrWest ? wrapPageArcSeconds(circleArcSeconds - angle) : angle;
    showLon();
}

void CDialogLatLon::latitudeTyped(const QWidget* source)
{
    if (source->hasFocus()) {
        updateLat(typedAngle(latitudeBoxes(*ui)));
    }
}

void CDialogLatLon::longitudeTyped(const QWidget* source)
{
    if (source->hasFocus()) {
        updateLon(typedAngle(longitudeBoxes(*ui)));
    }
}

void CDialogLatLon::on_sbLatDeg_valueChanged(int latD)
{
    Q_UNUSED(latD)
    latitudeTyped(ui->sbLatDeg);
}

void CDialogLatLon::on_sbLatMin_valueChanged(int min)
{
    Q_UNUSED(min)
    latitudeTyped(ui->sbLatMin);
}

void CDialogLatLon::on_sbLatSec_valueChanged(double sec)
{
    Q_UNUSED(sec)
    latitudeTyped(ui->sbLatSec);
}

void CDialogLatLon::on_sbLonDeg_valueChanged(int lonD)
{
    Q_UNUSED(lonD)
    longitudeTyped(ui->sbLonDeg);
}

void CDialogLatLon::on_sbLonMin_valueChanged(int min)
{
    Q_UNUSED(min)
    longitudeTyped(ui->sbLonMin);
}

void CDialogLatLon::on_sbLonSec_valueChanged(double sec)
{
    Q_UNUSED(sec)
    longitudeTyped(ui->sbLonSec);
}

void CDialogLatLon::on_cbEW_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    if (ui->cbEW->hasFocus()) {
        updateLon(ui->edLon->text().toDouble());
    }
}

void CDialogLatLon::on_cbNS_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    // The number read has its sign already: going from S back to N keeps it negative, as this dialog always did.
    if (ui->cbNS->hasFocus()) {
        updateLat(ui->edLat->text().toDouble());
    }
}
