// The position dialog: three displays of one position, and its buttons.
#include "positiondialogtest.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <limits>

class TestCDialogLatLon : public PositionDialogTest
{
    Q_OBJECT

private slots:
    void formHasItsTexts();
    void formHasItsLimits();
    void numbersStandAtTheRight();
    void fiftyNorthAndTwoWest();
    void theBoxesOfAPosition_data();
    void theBoxesOfAPosition();
    void theDisplaysOfAPosition();
    void latitudeZeroIsSouth();
    void longitudeZeroIsWest();
    void secondsThatRoundTo60Stay60();
    void aLatitudeBeyond80IsKeptUntilItIsTyped();
    void showingAPositionIsNotTyping_data();
    void showingAPositionIsNotTyping();
    void okAccepts();
    void cancelRejects();
    void anyNumberIsShownWithoutACrash_data();
    void anyNumberIsShownWithoutACrash();
};

void TestCDialogLatLon::formHasItsTexts()
{
    QCOMPARE(dialog->windowTitle(), QString("Lat/Lon"));
    QCOMPARE(textOf(*dialog, "label_22"), QString("Latitude"));
    QCOMPARE(textOf(*dialog, "label_21"), QString("Longitude"));
    QStringList units;
    for (const auto* label : dialog->findChildren<QLabel*>())
        units << label->text();
    for (const char* unit : {"°", "'", "\""})
        QCOMPARE(units.count(unit), 2);
    const auto* northSouth = widgetOf<QComboBox>(*dialog, "cbNS");
    QCOMPARE(northSouth->count(), 2);
    QCOMPARE(northSouth->itemText(0) + northSouth->itemText(1), QString("NS"));
    const auto* eastWest = widgetOf<QComboBox>(*dialog, "cbEW");
    QCOMPARE(eastWest->count(), 2);
    QCOMPARE(eastWest->itemText(0) + eastWest->itemText(1), QString("EW"));
    QCOMPARE(widgetOf<QFrame>(*dialog, "line")->frameShape(), QFrame::HLine);
    QCOMPARE(widgetOf<QDialogButtonBox>(*dialog, "buttonBox")->standardButtons(),
             QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void TestCDialogLatLon::formHasItsLimits()
{
    // The tile grid stops short of the poles, and so do the degrees of latitude.
    QCOMPARE(widgetOf<QSpinBox>(*dialog, "sbLatDeg")->maximum(), 80);
    QCOMPARE(widgetOf<QSpinBox>(*dialog, "sbLonDeg")->maximum(), 180);
    for (const char* name : {"sbLatMin", "sbLonMin"})
        QCOMPARE(widgetOf<QSpinBox>(*dialog, name)->maximum(), 59);
    for (const char* name : {"sbLatDeg", "sbLatMin", "sbLonDeg", "sbLonMin"})
        QCOMPARE(widgetOf<QSpinBox>(*dialog, name)->minimum(), 0);
    for (const char* name : {"sbLatSec", "sbLonSec"}) {
        QCOMPARE(widgetOf<QDoubleSpinBox>(*dialog, name)->minimum(), 0.0);
        QCOMPARE(widgetOf<QDoubleSpinBox>(*dialog, name)->maximum(), 60.0);
        QCOMPARE(widgetOf<QDoubleSpinBox>(*dialog, name)->minimumWidth(), 60);
    }
    for (const char* name : {"edLat", "edLon"})
        QCOMPARE(widgetOf<QLineEdit>(*dialog, name)->minimumWidth(), 50);
    for (const char* name : {"cbNS", "cbEW"})
        QCOMPARE(widgetOf<QComboBox>(*dialog, name)->maximumWidth(), 40);
}

void TestCDialogLatLon::numbersStandAtTheRight()
{
    for (const char* name : {"edLat", "edLat_2", "edLon", "edLon_2"})
        QVERIFY(widgetOf<QLineEdit>(*dialog, name)->alignment() & Qt::AlignRight);
    for (const char* name : {"sbLatDeg", "sbLatMin", "sbLatSec", "sbLonDeg", "sbLonMin", "sbLonSec"})
        QVERIFY(widgetOf<QAbstractSpinBox>(*dialog, name)->alignment() & Qt::AlignRight);
}

void TestCDialogLatLon::fiftyNorthAndTwoWest()
{
    dialog->setPosition(180000, -7200);
    QCOMPARE(latitude(), QString("N 50 0 0.00"));
    QCOMPARE(longitude(), QString("W 2 0 0.00"));
    QCOMPARE(dialog->lat, 180000.0);
    QCOMPARE(dialog->lon, -7200.0);
}

void TestCDialogLatLon::theBoxesOfAPosition_data()
{
    QTest::addColumn<double>("latSec");
    QTest::addColumn<double>("lonSec");
    QTest::addColumn<QString>("boxes");
    QTest::newRow("minutes and seconds") << 175530.64 << 8491.25 << "N 48 45 30.64, E 2 21 31.25";
    QTest::newRow("south") << -175530.64 << 8491.25 << "S 48 45 30.64, E 2 21 31.25";
    QTest::newRow("west of the whole circle") << 36000.0 << 1288800.0 << "N 10 0 0.00, W 2 0 0.00";
    QTest::newRow("the half circle is east") << 36000.0 << 648000.0 << "N 10 0 0.00, E 180 0 0.00";
    QTest::newRow("minus the half circle is east") << 36000.0 << -648000.0 << "N 10 0 0.00, E 180 0 0.00";
    QTest::newRow("past the half circle") << 36000.0 << 649800.0 << "N 10 0 0.00, W 179 30 0.00";
    QTest::newRow("a round more") << 36000.0 << 1299600.0 << "N 10 0 0.00, E 1 0 0.00";
    QTest::newRow("two rounds back") << 36000.0 << -2595600.0 << "N 10 0 0.00, W 1 0 0.00";
}

void TestCDialogLatLon::theBoxesOfAPosition()
{
    QFETCH(double, latSec);
    QFETCH(double, lonSec);
    QFETCH(QString, boxes);
    dialog->setPosition(latSec, lonSec);
    QCOMPARE(latitude() + ", " + longitude(), boxes);
    QCOMPARE(dialog->lat, latSec);
    QCOMPARE(dialog->lon, lonSec);
}

void TestCDialogLatLon::theDisplaysOfAPosition()
{
    dialog->setPosition(175530.638, 1288800.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("175530.64"));
    QCOMPARE(textOf(*dialog, "edLat_2"), QString("48.75851°"));
    QCOMPARE(textOf(*dialog, "edLon"), QString("1288800.00"));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString("358.00000°"));
    dialog->setPosition(-0.004, -7200.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("-0.00"));
    QCOMPARE(textOf(*dialog, "edLat_2"), QString("-0.00000°"));
    QCOMPARE(textOf(*dialog, "edLon"), QString("-7200.00"));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString("-2.00000°"));
}

void TestCDialogLatLon::latitudeZeroIsSouth()
{
    dialog->setPosition(0, 3600);
    QCOMPARE(latitude(), QString("S 0 0 0.00"));
    QCOMPARE(dialog->lat, 0.0);
}

void TestCDialogLatLon::longitudeZeroIsWest()
{
    dialog->setPosition(3600, 0);
    QCOMPARE(longitude(), QString("W 0 0 0.00"));
    dialog->setPosition(3600, 1296000);
    QCOMPARE(longitude(), QString("W 0 0 0.00"));
}

void TestCDialogLatLon::secondsThatRoundTo60Stay60()
{
    dialog->setPosition(180059.999, 7259.999);
    QCOMPARE(latitude(), QString("N 50 0 60.00"));
    QCOMPARE(longitude(), QString("E 2 0 60.00"));
}

void TestCDialogLatLon::aLatitudeBeyond80IsKeptUntilItIsTyped()
{
    dialog->setPosition(306000, 3600);
    QCOMPARE(latitude(), QString("N 80 0 0.00"));
    QCOMPARE(dialog->lat, 306000.0);
    typeInto(*dialog, "sbLatMin", "30");
    QCOMPARE(dialog->lat, 289800.0);
}

void TestCDialogLatLon::showingAPositionIsNotTyping_data()
{
    QTest::addColumn<QString>("focused");
    for (const char* name :
         {"edLat", "cbNS", "sbLatDeg", "sbLatMin", "sbLatSec", "cbEW", "sbLonDeg", "sbLonMin", "sbLonSec"})
        QTest::newRow(name) << name;
}

void TestCDialogLatLon::showingAPositionIsNotTyping()
{
    QFETCH(QString, focused);
    auto* box = widgetOf<QWidget>(*dialog, focused);
    box->setFocus();
    QVERIFY(box->hasFocus());
    dialog->setPosition(-180000, -7200);
    QCOMPARE(dialog->lat, -180000.0);
    QCOMPARE(dialog->lon, -7200.0);
    // More decimals than the boxes hold: what is read out of them is another position.
    dialog->setPosition(-175530.638, -8491.252);
    QCOMPARE(dialog->lat, -175530.638);
    QCOMPARE(dialog->lon, -8491.252);
    QCOMPARE(textOf(*dialog, "edLat"), QString("-175530.64"));
    QCOMPARE(textOf(*dialog, "edLon"), QString("-8491.25"));
    QCOMPARE(latitude() + ", " + longitude(), QString("S 48 45 30.64, W 2 21 31.25"));
    dialog->setPosition(180059.999, 7200);
    QCOMPARE(dialog->lat, 180059.999);
    QCOMPARE(dialog->lon, 7200.0);
}

void TestCDialogLatLon::okAccepts()
{
    dialog->setPosition(180000, 7200);
    QTest::mouseClick(widgetOf<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QVERIFY(!dialog->isVisible());
}

void TestCDialogLatLon::cancelRejects()
{
    dialog->setResult(QDialog::Accepted);
    QTest::mouseClick(widgetOf<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Cancel),
                      Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Rejected));
    QVERIFY(!dialog->isVisible());
}

void TestCDialogLatLon::anyNumberIsShownWithoutACrash_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity();
    QTest::newRow("enormous") << 1e300;
    QTest::newRow("minus enormous") << -1e300;
}

void TestCDialogLatLon::anyNumberIsShownWithoutACrash()
{
    QFETCH(double, value);
    dialog->setPosition(value, value);
    QVERIFY(whole("sbLatDeg") >= 0 && whole("sbLatDeg") <= 80);
    QVERIFY(std::isfinite(real("sbLatSec")) && std::isfinite(real("sbLonSec")));
    typeInto(*dialog, "sbLatMin", "7");
    typeInto(*dialog, "sbLonMin", "7");
    QVERIFY(std::isfinite(dialog->lat) && std::isfinite(dialog->lon));
}

QTEST_MAIN(TestCDialogLatLon)
#include "tst_cdialoglatlon.moc"
