#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class CDialogLatLon;
}

/// Lets the user type a position as degrees, minutes and seconds, and shows it in arc seconds and in degrees.
class CDialogLatLon : public QDialog
{
    Q_OBJECT

public:
    explicit CDialogLatLon(QWidget* parent = nullptr);
    ~CDialogLatLon() override;

    /// Shows a position in arc seconds, before `exec`. What its boxes cannot show is kept until the user changes it.
    void setPosition(double latSec, double lonSec);

    /// The position in arc seconds, to be read when `exec` has accepted it. A west longitude that was typed lies
    /// between 648000 and 1296000, in the whole circle.
    double lat = 0.0;
    double lon = 0.0;

public slots:
    // Each does nothing unless its own widget has the focus: what the program sets is not typed.
    void on_sbLatDeg_valueChanged(int latD);
    void on_sbLatMin_valueChanged(int min);
    void on_sbLatSec_valueChanged(double sec);
    void on_sbLonDeg_valueChanged(int lonD);
    void on_sbLonMin_valueChanged(int min);
    void on_sbLonSec_valueChanged(double sec);
    void on_cbEW_currentIndexChanged(int index);
    void on_cbNS_currentIndexChanged(int index);

private:
    void showLat();
    void showLon();
    void updateLat(double value);
    void updateLon(double value);
    void latitudeTyped(const QWidget* source);
    void longitudeTyped(const QWidget* source);

    std::unique_ptr<Ui::CDialogLatLon> ui;
};
