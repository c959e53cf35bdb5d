// The position dialog while the user types: the displays are kept in step.
#include "positiondialogtest.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QtTest>

class TestLatLonTyping : public PositionDialogTest
{
    Q_OBJECT

private slots:
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
};

void TestLatLonTyping::aChangeByTheProgramHasNoEffect()
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

void TestLatLonTyping::typingALatitude_data()
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

void TestLatLonTyping::typingALatitude()
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

void TestLatLonTyping::typingALongitude_data()
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

void TestLatLonTyping::typingALongitude()
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

void TestLatLonTyping::degreesTypedInTheWestLieInTheWholeCircle()
{
    dialog->setPosition(180000, -36000);
    typeInto(*dialog, "sbLonDeg", "2");
    QCOMPARE(dialog->lon, 1288800.0);
    QCOMPARE(textOf(*dialog, "edLon"), QString("1288800.00"));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString("358.00000°"));
}

void TestLatLonTyping::zeroTypedInTheWestIsAFullCircle()
{
    dialog->setPosition(180000, -36000);
    typeInto(*dialog, "sbLonDeg", "0");
    QCOMPARE(dialog->lon, 1296000.0);
}

void TestLatLonTyping::theArrowsCountAsTyping()
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

void TestLatLonTyping::fromNorthToSouth()
{
    dialog->setPosition(180000, 7200);
    choose(*dialog, "cbNS", "S");
    QCOMPARE(dialog->lat, -180000.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("-180000.00"));
    QCOMPARE(textOf(*dialog, "edLat_2"), QString("-50.00000°"));
}

void TestLatLonTyping::backToNorthKeepsTheNegativeLatitude()
{
    dialog->setPosition(-180000, 7200);
    choose(*dialog, "cbNS", "N");
    QCOMPARE(dialog->lat, -180000.0);
    QCOMPARE(textOf(*dialog, "edLat"), QString("-180000.00"));
    QTest::mouseClick(widgetOf<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(dialog->lat, -180000.0);
}

void TestLatLonTyping::fromWestToEast()
{
    dialog->setPosition(180000, 1288800);
    choose(*dialog, "cbEW", "E");
    QCOMPARE(dialog->lon, 7200.0);
    QCOMPARE(textOf(*dialog, "edLon"), QString("7200.00"));
    QCOMPARE(textOf(*dialog, "edLon_2"), QString("2.00000°"));
}

void TestLatLonTyping::fromEastToWest()
{
    dialog->setPosition(180000, 7200);
    choose(*dialog, "cbEW", "W");
    QCOMPARE(dialog->lon, 1288800.0);
    choose(*dialog, "cbEW", "E");
    QCOMPARE(dialog->lon, 7200.0);
}

void TestLatLonTyping::theMouseChoosesAHemisphere()
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

void TestLatLonTyping::theDisplaysAreNotRead()
{
    dialog->setPosition(180000, 7200);
    typeInto(*dialog, "edLat", "36000");
    typeInto(*dialog, "edLon_2", "9");
    QCOMPARE(latitude(), QString("N 50 0 0.00"));
    QCOMPARE(longitude(), QString("E 2 0 0.00"));
    QCOMPARE(dialog->lat, 180000.0);
    QCOMPARE(dialog->lon, 7200.0);
}

void TestLatLonTyping::anUnreadableDisplayCountsAsZero()
{
    dialog->setPosition(180000, 7200);
    typeInto(*dialog, "edLat", "abc");
    choose(*dialog, "cbNS", "S");
    QCOMPARE(dialog->lat, 0.0);
    typeInto(*dialog, "edLon", "abc");
    choose(*dialog, "cbEW", "W");
    QCOMPARE(dialog->lon, 1296000.0);
}

QTEST_MAIN(TestLatLonTyping)
#include "tst_latlontyping.moc"
