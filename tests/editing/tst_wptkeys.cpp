// The identifier and the key that the waypoint dialog makes of name and country.
#include "dialogtests.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

class TestWptKeys : public WptDialogTest
{
    Q_OBJECT

private slots:
    void aTypedNameMakesIdentifierAndKey();
    void aNameOfThreeLetters();
    void aNameIsPutIntoCapitals();
    void typingInTheMiddleOfANameKeepsTheCursorThere();
    void aNameEndsAt26Characters();
    void aNameSetByTheProgramMakesNoKey();
    void anIdentifierIsLeftAsTyped();
    void anotherCountryReplacesTheLastTwoLetters();
    void aLongCountryCodeSpoilsTheKey();
    void aCountryBeforeANameIsTheKey();
};

void TestWptKeys::aTypedNameMakesIdentifierAndKey()
{
    openNew(172800, 7200);
    choose(*dialog, "cbCtry", "FR");
    typeInto(*dialog, "leName", "ABLAN NORD");
    QCOMPARE(textOf(*dialog, "leName"), QString("ABLAN NORD"));
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABLA"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANFR"));
}

void TestWptKeys::aNameOfThreeLetters()
{
    openNew(172800, 7200);
    choose(*dialog, "cbCtry", "FR");
    typeInto(*dialog, "leName", "ABC");
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABC"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABCFR"));
}

void TestWptKeys::aNameIsPutIntoCapitals()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "bl");
    QKeyEvent accented(QEvent::KeyPress, 0, Qt::NoModifier, "é");
    QApplication::sendEvent(widgetOf<QLineEdit>(*dialog, "leName"), &accented);
    QTest::keyClicks(widgetOf<QLineEdit>(*dialog, "leName"), "o 7");
    QCOMPARE(textOf(*dialog, "leName"), QString("BLÉO 7"));
    QCOMPARE(textOf(*dialog, "leIden"), QString("BLÉO"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("BLÉO DE"));
}

void TestWptKeys::typingInTheMiddleOfANameKeepsTheCursorThere()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "ad");
    QTest::keyClick(widgetOf<QLineEdit>(*dialog, "leName"), Qt::Key_Left);
    QTest::keyClicks(widgetOf<QLineEdit>(*dialog, "leName"), "bc");
    QCOMPARE(textOf(*dialog, "leName"), QString("ABCD"));
}

void TestWptKeys::aNameEndsAt26Characters()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "abcdefghijklmnopqrstuvwxyz123");
    QCOMPARE(textOf(*dialog, "leName"), QString("ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
}

void TestWptKeys::aNameSetByTheProgramMakesNoKey()
{
    openNew(172800, 7200);
    widgetOf<QWidget>(*dialog, "leUkey")->setFocus();
    dialog->on_leName_textEdited("abc");
    QCOMPARE(textOf(*dialog, "leName"), QString());
    QCOMPARE(textOf(*dialog, "leUkey"), QString());
}

void TestWptKeys::anIdentifierIsLeftAsTyped()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "ABLAN");
    typeInto(*dialog, "leIden", "xyzuvw");
    QCOMPARE(textOf(*dialog, "leIden"), QString("xyzuv"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANDE"));
}

void TestWptKeys::anotherCountryReplacesTheLastTwoLetters()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "ABLAN");
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANDE"));
    auto* country = widgetOf<QComboBox>(*dialog, "cbCtry");
    country->setCurrentIndex(country->findText("FR"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANFR"));
    choose(*dialog, "cbCtry", "ES");
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANES"));
}

void TestWptKeys::aLongCountryCodeSpoilsTheKey()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "ABLAN");
    auto* country = widgetOf<QComboBox>(*dialog, "cbCtry");
    country->setCurrentIndex(country->findText("FRA"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANFRA"));
    country->setCurrentIndex(country->findText("ES"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANFES"));
}

void TestWptKeys::aCountryBeforeANameIsTheKey()
{
    openNew(172800, 7200);
    choose(*dialog, "cbCtry", "ES");
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ES"));
    QCOMPARE(textOf(*dialog, "leIden"), QString());
}

QTEST_MAIN(TestWptKeys)
#include "tst_wptkeys.moc"
