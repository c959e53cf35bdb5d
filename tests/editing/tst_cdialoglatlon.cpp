// The position dialog: three displays of one position, kept in step with what the user types.
#include "cdialoglatlon.h"
#include "editingworld.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <cmath>
#include <limits>

class TestCDialogLatLon : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        dialog.reset(new CDialogLatLon(nullptr));
        present(*dialog);
    }

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
    void aChangeByTheProgramHasNoEffect();
    void typingALatitude_data();
    void typingALatitude();
    void typingALongitude_data();
    void typingALongitude();
    void degreesTypedInTheWestLieInTheWholeCircle();
    void zeroTypedInTheWestIsAFullCircle();
    void theArrowsCountAsTyping();
    void fromNorthToSouth();
    void backToNorthKeepsTheNegativeLatitude();
    void fromWestToEast();
    void fromEastToWest();
    void theMouseChoosesAHemisphere();
    void theDisplaysAreNotRead();
    void anUnreadableDisplayCountsAsZero();
    void okAccepts();
    void cancelRejects();
    void anyNumberIsShownWithoutACrash_data();
    void anyNumberIsShownWithoutACrash();

private:
    int whole(const QString& name) const
    {
        return widgetOf<QSpinBox>(*dialog, name)->value();
    }
    double real(const QString& name) const
    {
        return widgetOf<QDoubleSpinBox>(*dialog, name)->value();
    }
    /// Hemisphere, degrees, minutes and seconds of a row: "N 50 0 0.00".
    QString row(const QString& hemisphere, const QString& stem) const
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(textOf(*dialog, hemisphere))
            .arg(whole(stem + "Deg"))
            .arg(whole(stem + "Min"))
            .arg(real(stem + "Sec"), 0, 'f', 2);
    }
    QString latitude() const
    {
        return row("cbNS", "sbLat");
    }
    QString longitude() const
    {
        return row("cbEW", "sbLon");
    }

    QScopedPointer<CDialogLatLon> dialog;
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

void TestCDialogLatLon::aChangeByTheProgramHasNoEffect()
{
    dialog->setPosition(180000, 7200);
    widgetOf<QWidget>(*dialog, "edLat")->setFocus();
    widgetOf<QSpinBox>(*dialog, "sbLatDeg")->setValue(10);
    widgetOf<QSpinBox>(*dialog, "sbLonMin")->setValue(10);
    widgetOf<QDoubleSpinBox>(*dialog, "sbLonSec")->setValue(10);
    widgetOf<QComboBox>(*dialog, "cbNS")->setCurrentIndex(1);
    widgetOf<QComboBox>(*dialog, "cbEW")->setCurrentIndex(1);
    QCOMPARE(dialog->lat, 180000.0);
    QCOMPARE(dialog->lon, 7200.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("180000.00"));
    QCOMPARE(textOf(*dialog, "edLon"), QString("7200.00"));
}

void TestCDialogLatLon::typingALatitude_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<double>("to");
    QTest::newRow("degrees") << 180000.0 << "sbLatDeg"
                             << "48" << 172800.0;
    QTest::newRow("minutes") << 180000.0 << "sbLatMin"
                             << "45" << 182700.0;
    QTest::newRow("seconds") << 180000.0 << "sbLatSec"
                             << "30,64" << 180030.64;
    QTest::newRow("degrees in the south") << -182730.0 << "sbLatDeg"
                                          << "48" << -175530.0;
    QTest::newRow("minutes in the south") << -180000.0 << "sbLatMin"
                                          << "45" << -182700.0;
    QTest::newRow("seconds in the south") << -180000.0 << "sbLatSec"
                                          << "30,64" << -180030.64;
    QTest::newRow("sixty seconds") << 180000.0 << "sbLatSec"
                                   << "60,00" << 180060.0;
}

void TestCDialogLatLon::typingALatitude()
{
    QFETCH(double, from);
    QFETCH(QString, box);
    QFETCH(QString, keys);
    QFETCH(double, to);
    dialog->setPosition(from, 7200);
    typeInto(*dialog, box, keys);
    QCOMPARE(dialog->lat, to);
    QCOMPARE(textOf(*dialog, "edLat"), QString::number(to, 'f', 2));
    QCOMPARE(textOf(*dialog, "edLat_2"), QString::number(to / 3600, 'f', 5) + "°");
    QCOMPARE(dialog->lon, 7200.0);
}

void TestCDialogLatLon::typingALongitude_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<double>("to");
    QTest::newRow("degrees") << 7200.0 << "sbLonDeg"
                             << "12" << 43200.0;
    QTest::newRow("minutes") << 7200.0 << "sbLonMin"
                             << "21" << 8460.0;
    QTest::newRow("seconds") << 7200.0 << "sbLonSec"
                             << "31,25" << 7231.25;
    QTest::newRow("minutes in the west") << -7200.0 << "sbLonMin"
                                         << "30" << 1287000.0;
    QTest::newRow("seconds in the west") << 1288800.0 << "sbLonSec"
                                         << "0,50" << 1288799.5;
    QTest::newRow("the half circle in the east") << 7200.0 << "sbLonDeg"
                                                 << "180" << 648000.0;
    QTest::newRow("the half circle in the west") << -7200.0 << "sbLonDeg"
                                                 << "180" << 648000.0;
    // One more minute lies on the other side, and is taken for the same angle there.
    QTest::newRow("past the half circle") << 648000.0 << "sbLonMin"
                                          << "30" << 646200.0;
}

void TestCDialogLatLon::typingALongitude()
{
    QFETCH(double, from);
    QFETCH(QString, box);
    QFETCH(QString, keys);
    QFETCH(double, to);
    dialog->setPosition(180000, from);
    typeInto(*dialog, box, keys);
    QCOMPARE(dialog->lon, to);
    QCOMPARE(textOf(*dialog, "edLon"), QString::number(to, 'f', 2));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString::number(to / 3600, 'f', 5) + "°");
    QCOMPARE(dialog->lat, 180000.0);
}

void TestCDialogLatLon::degreesTypedInTheWestLieInTheWholeCircle()
{
    dialog->setPosition(180000, -36000);
    typeInto(*dialog, "sbLonDeg", "2");
    QCOMPARE(dialog->lon, 1288800.0);
    QCOMPARE(textOf(*dialog, "edLon"), QString("1288800.00"));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString("358.00000°"));
}

void TestCDialogLatLon::zeroTypedInTheWestIsAFullCircle()
{
    dialog->setPosition(180000, -36000);
    typeInto(*dialog, "sbLonDeg", "0");
    QCOMPARE(dialog->lon, 1296000.0);
}

void TestCDialogLatLon::theArrowsCountAsTyping()
{
    dialog->setPosition(180000, 7200);
    auto* degrees = widgetOf<QSpinBox>(*dialog, "sbLatDeg");
    degrees->setFocus();
    QTest::keyClick(degrees, Qt::Key_Up);
    QCOMPARE(dialog->lat, 183600.0);
    QTest::keyClick(degrees, Qt::Key_Down);
    QTest::keyClick(degrees, Qt::Key_Down);
    QCOMPARE(dialog->lat, 176400.0);
}

void TestCDialogLatLon::fromNorthToSouth()
{
    dialog->setPosition(180000, 7200);
    choose(*dialog, "cbNS", "S");
    QCOMPARE(dialog->lat, -180000.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("-180000.00"));
    QCOMPARE(textOf(*dialog, "edLat_2"), QString("-50.00000°"));
}

void TestCDialogLatLon::backToNorthKeepsTheNegativeLatitude()
{
    dialog->setPosition(-180000, 7200);
    choose(*dialog, "cbNS", "N");
    QCOMPARE(dialog->lat, -180000.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("-180000.00"));
    QTest::mouseClick(widgetOf<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->lat, -180000.0);
}

void TestCDialogLatLon::fromWestToEast()
{
    dialog->setPosition(180000, 1288800);
    choose(*dialog, "cbEW", "E");
    QCOMPARE(dialog->lon, 7200.0);
    QCOMPARE(textOf(*dialog, "edLon"), QString("7200.00"));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString("2.00000°"));
}

void TestCDialogLatLon::fromEastToWest()
{
    dialog->setPosition(180000, 7200);
    choose(*dialog, "cbEW", "W");
    QCOMPARE(dialog->lon, 1288800.0);
    choose(*dialog, "cbEW", "E");
    QCOMPARE(dialog->lon, 7200.0);
}

void TestCDialogLatLon::theMouseChoosesAHemisphere()
{
    dialog->setPosition(180000, 7200);
    auto* box = widgetOf<QComboBox>(*dialog, "cbNS");
    QTest::mouseClick(box, Qt::LeftButton);
    QAbstractItemView* list = box->view();
    QTRY_VERIFY_WITH_TIMEOUT(list->isVisible(), 20000);
    // The list ignores a release that could belong to the press that opened it.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    const QPoint south = list->visualRect(box->model()->index(1, 0)).topLeft() + QPoint(5, 5);
    QMouseEvent move(QEvent::MouseMove, south, list->viewport()->mapToGlobal(south), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &move);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, south);
    QTRY_COMPARE_WITH_TIMEOUT(textOf(*dialog, "cbNS"), QString("S"), 20000);
    QCOMPARE(dialog->lat, -180000.0);
}

void TestCDialogLatLon::theDisplaysAreNotRead()
{
    dialog->setPosition(180000, 7200);
    typeInto(*dialog, "edLat", "36000");
    typeInto(*dialog, "edLon_2", "9");
    QCOMPARE(latitude(), QString("N 50 0 0.00"));
    QCOMPARE(longitude(), QString("E 2 0 0.00"));
    QCOMPARE(dialog->lat, 180000.0);
    QCOMPARE(dialog->lon, 7200.0);
}

void TestCDialogLatLon::anUnreadableDisplayCountsAsZero()
{
    dialog->setPosition(180000, 7200);
    typeInto(*dialog, "edLat", "abc");
    choose(*dialog, "cbNS", "S");
    QCOMPARE(dialog->lat, 0.0);
    typeInto(*dialog, "edLon", "abc");
    choose(*dialog, "cbEW", "W");
    QCOMPARE(dialog->lon, 1296000.0);
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
