// The navaid dialog before OK: what it shows, and its position.
#include "dialogtests.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

class TestCDialogNav : public NavDialogTest
{
    Q_OBJECT

private slots:
    void formHasItsTexts();
    void formHasItsLimits();
    void theFrequencyStepsByAChannel();
    void aNewNavaidShowsItsPlaceAndTile();
    void aNewNavaidIsAHighVor();
    void aRowFillsTheForm();
    void aStoredTypeChecksItsButton_data();
    void aStoredTypeChecksItsButton();
    void aWrittenTacanIsNotKnownAgain();
    void aStoredUsageChecksItsButton_data();
    void aStoredUsageChecksItsButton();
    void anUnknownUsageChecksNoButton();
    void unknownValuesAfterKnownOnesShowTheFormsButtons();
    void openingARowAsksNothingAndKeepsItsKey();
    void aTextThatIsTooLongForTypingIsShownWhole();
    void aFrequencyBeyondTheBoxIsShownAtItsEdge_data();
    void aFrequencyBeyondTheBoxIsShownAtItsEdge();
    void aRowOfNothingIsShown();
    void aPressOnThePositionOpensItsDialog();
    void aCancelledPositionChangesNothing();
    void cancelLeavesNoResult();
};

void TestCDialogNav::formHasItsTexts()
{
    openNew();
    QCOMPARE(dialog->windowTitle(), QString("NAVAID"));
    const QVector<QPair<QString, QString>> texts = {
        {"cbUpdateDB", "Mise à jour DB"},
        {"cbSaveCSV", "Enregistrement CSV"},
        {"rbVOR", "VOR"},
        {"rbTACAN", "TACAN"},
        {"rbNDB", "NDB"},
        {"rbVORDME", "VOR DME"},
        {"rbNDBDME", "NDB DME"},
        {"rbHigh", "High"},
        {"rbLow", "Low"},
        {"rbBoth", "Both"},
        {"rbTerm", "Terminal"},
        {"rbRnav", "RNAV"},
        {"pbOK", "OK"},
        {"pbCancel", "Cancel"},
    };
    for (const auto& text : texts)
        QCOMPARE(textOf(*dialog, text.first), text.second);
    const QVector<QPair<QString, QString>> labels = {
        {"sbFreq", "Fréquence"}, {"sbLat", "Latitude"},     {"sbLon", "Longitude"},   {"cbCtry", "Pays"},
        {"leName", "Nom"},       {"leIden", "Identifiant"}, {"leUkey", "Clé unique"}, {"leTile", "0"},
    };
    QStringList found;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
        if (label->buddy())
            found << label->buddy()->objectName() + '=' + label->text();
    }
    for (const auto& label : labels)
        QVERIFY2(found.contains(label.first + '=' + label.second), qPrintable(label.first));
}

void TestCDialogNav::formHasItsLimits()
{
    openNew();
    const auto* frequency = widgetOf<QDoubleSpinBox>(*dialog, "sbFreq");
    QCOMPARE(frequency->decimals(), 3);
    QCOMPARE(frequency->minimum(), 108.0);
    QCOMPARE(frequency->maximum(), 1750.0);
    QCOMPARE(frequency->singleStep(), 0.025);
    QCOMPARE(widgetOf<QLineEdit>(*dialog, "leIden")->maxLength(), 5);
    for (const char* name : {"sbLat", "sbLon"}) {
        QVERIFY(widgetOf<QLineEdit>(*dialog, name)->isReadOnly());
        QVERIFY(widgetOf<QLineEdit>(*dialog, name)->alignment() & Qt::AlignRight);
    }
    QVERIFY(widgetOf<QCheckBox>(*dialog, "cbUpdateDB")->isChecked());
    QVERIFY(!widgetOf<QCheckBox>(*dialog, "cbUpdateDB")->isEnabled());
    QVERIFY(!widgetOf<QCheckBox>(*dialog, "cbSaveCSV")->isChecked());
    QCOMPARE(dialog->findChild<QButtonGroup*>("buttonGroup")->buttons().size(), 5);
}

void TestCDialogNav::theFrequencyStepsByAChannel()
{
    openNew();
    auto* frequency = widgetOf<QDoubleSpinBox>(*dialog, "sbFreq");
    frequency->setFocus();
    QTest::keyClick(frequency, Qt::Key_Up);
    QCOMPARE(frequency->value(), 108.025);
}

void TestCDialogNav::aNewNavaidShowsItsPlaceAndTile()
{
    dialog.reset(new CDialogNav(172800.016, 1288800.004, nullptr));
    QCOMPARE(textOf(*dialog, "sbLat"), QString("172800.02"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("1288800.00"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("16646310"));
    QCOMPARE(dialog->lat, 172800.016);
    QCOMPARE(dialog->lon, 1288800.004);
    for (const char* name : {"leName", "leIden", "leUkey"})
        QCOMPARE(textOf(*dialog, name), QString());
}

void TestCDialogNav::aNewNavaidIsAHighVor()
{
    openNew();
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbVOR"});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{"rbHigh"});
    QCOMPARE(widgetOf<QDoubleSpinBox>(*dialog, "sbFreq")->value(), 108.0);
}

void TestCDialogNav::aRowFillsTheForm()
{
    openRow({{"ukey", "ABB4FR"},
             {"iden", "ABB"},
             {"name", "ABBEVILLE"},
             {"nfrq", 108.45},
             {"ctry", "FR"},
             {"tile", 65705},
             {"ntyp", 17},
             {"nuse", 2},
             {"nlat", 180486.36},
             {"nlon", 6676.8842}});
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB4FR"));
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABB"));
    QCOMPARE(textOf(*dialog, "leName"), QString("ABBEVILLE"));
    QCOMPARE(widgetOf<QDoubleSpinBox>(*dialog, "sbFreq")->value(), 108.45);
    QCOMPARE(textOf(*dialog, "sbFreq"), QString("108,450"));
    QCOMPARE(textOf(*dialog, "cbCtry"), QString("FR"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("65705"));
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbVORDME"});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{"rbLow"});
    QCOMPARE(textOf(*dialog, "sbLat"), QString("180486.36"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("6676.8842"));
    QCOMPARE(dialog->lat, 180486.36);
    QCOMPARE(dialog->lon, 6676.8842);
}

void TestCDialogNav::aStoredTypeChecksItsButton_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("button");
    QTest::newRow("1") << 1 << "rbVOR";
    QTest::newRow("4") << 4 << "rbTACAN";
    QTest::newRow("8") << 8 << "rbNDB";
    QTest::newRow("17") << 17 << "rbVORDME";
    QTest::newRow("24") << 24 << "rbNDBDME";
}

void TestCDialogNav::aStoredTypeChecksItsButton()
{
    QFETCH(int, stored);
    QFETCH(QString, button);
    openRow({{"ntyp", stored}});
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{button});
}

void TestCDialogNav::aWrittenTacanIsNotKnownAgain()
{
    openRow({{"ntyp", 5}});
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbVOR"});
}

void TestCDialogNav::aStoredUsageChecksItsButton_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("button");
    QTest::newRow("1") << 1 << "rbHigh";
    QTest::newRow("2") << 2 << "rbLow";
    QTest::newRow("3") << 3 << "rbBoth";
    QTest::newRow("4") << 4 << "rbTerm";
    QTest::newRow("5") << 5 << "rbRnav";
}

void TestCDialogNav::aStoredUsageChecksItsButton()
{
    QFETCH(int, stored);
    QFETCH(QString, button);
    openRow({{"nuse", stored}});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{button});
}

void TestCDialogNav::anUnknownUsageChecksNoButton()
{
    openRow({{"nuse", 0}});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList());
}

void TestCDialogNav::unknownValuesAfterKnownOnesShowTheFormsButtons()
{
    openRow({{"ntyp", 8}, {"nuse", 3}});
    world->sandbox.addNavaid({{"ukey", "OTHERKEY"}, {"ntyp", 5}, {"nuse", 0}});
    dialog->setData(world->navaid("OTHERKEY"));
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbVOR"});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList());
    // One button at a time, as before.
    for (const char* name : {"rbTerm", "rbLow"})
        press(*dialog, name);
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{"rbLow"});
}

void TestCDialogNav::openingARowAsksNothingAndKeepsItsKey()
{
    openRow({{"ukey", "SPECIALKEY"}, {"iden", "SPEC"}, {"ctry", "ES"}});
    QCOMPARE(textOf(*dialog, "leUkey"), QString("SPECIALKEY"));
    QCOMPARE(textOf(*dialog, "cbCtry"), QString("ES"));
    world->sandbox.addNavaid({{"ukey", "OTHERKEY"}, {"iden", "OTHER"}, {"ctry", "DE"}});
    dialog->setData(world->navaid("OTHERKEY"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("OTHERKEY"));
    QCOMPARE(textOf(*dialog, "cbCtry"), QString("DE"));
    QVERIFY(boxes->seen().isEmpty());
}

void TestCDialogNav::aTextThatIsTooLongForTypingIsShownWhole()
{
    openRow({{"iden", "LFPO-NORD"}});
    QCOMPARE(textOf(*dialog, "leIden"), QString("LFPO-NORD"));
}

void TestCDialogNav::aFrequencyBeyondTheBoxIsShownAtItsEdge_data()
{
    QTest::addColumn<double>("stored");
    QTest::addColumn<double>("shown");
    QTest::newRow("too low") << 0.0 << 108.0;
    QTest::newRow("too high") << 2000.0 << 1750.0;
}

void TestCDialogNav::aFrequencyBeyondTheBoxIsShownAtItsEdge()
{
    QFETCH(double, stored);
    openRow({{"nfrq", stored}});
    QTEST(widgetOf<QDoubleSpinBox>(*dialog, "sbFreq")->value(), "shown");
}

void TestCDialogNav::aRowOfNothingIsShown()
{
    world->sandbox.insertRow(dbfile::gen, "NAV", {{"ukey", "NULLS"}});
    dialog.reset(new CDialogNav(world->navaid("NULLS"), nullptr));
    present(*dialog);
    QCOMPARE(textOf(*dialog, "leUkey"), QString("NULLS"));
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbVOR"});
    QCOMPARE(dialog->lat, 0.0);
}

void TestCDialogNav::aPressOnThePositionOpensItsDialog()
{
    openNew();
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) {
        QApplication::setActiveWindow(position);
        choose(*position, "cbEW", "W");
        position->accept();
    });
    QTest::mouseClick(widgetOf<QLineEdit>(*dialog, "sbLon"), Qt::LeftButton);
    QCOMPARE(textOf(*dialog, "sbLat"), QString("172800.00"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("1288800.00"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("16646310"));
}

void TestCDialogNav::aCancelledPositionChangesNothing()
{
    openRow({{"nlat", 180486.36}, {"nlon", 6676.8842}, {"tile", 7}});
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) {
        QApplication::setActiveWindow(position);
        typeInto(*position, "sbLatDeg", "10");
        position->reject();
    });
    QTest::mouseClick(widgetOf<QLineEdit>(*dialog, "sbLat"), Qt::LeftButton);
    QCOMPARE(textOf(*dialog, "sbLat"), QString("180486.36"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("6676.8842"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("7"));
}

void TestCDialogNav::cancelLeavesNoResult()
{
    openNew();
    typeInto(*dialog, "leIden", "abb");
    press(*dialog, "pbCancel");
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 0);
    QCOMPARE(dialog->script, QString());
    QCOMPARE(world->count(dbfile::gen, "NAV"), 0);
}

QTEST_MAIN(TestCDialogNav)
#include "tst_cdialognav.moc"
