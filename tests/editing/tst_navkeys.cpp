// The keys that the navaid dialog makes of identifier, type and country, and its questions.
#include "dialogtests.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

namespace {

QString existsText(const QString& iden)
{
    return QStringLiteral("Le navaid %1 existe déja.\nVoulez vous continuer ?").arg(iden);
}

} // namespace

class TestNavKeys : public NavDialogTest
{
    Q_OBJECT

private slots:
    void aTypedIdentifierMakesTheKey();
    void anIdentifierEndsAt5Characters();
    void typingInTheMiddleOfAnIdentifierKeepsTheCursorThere();
    void aTypeMakesItsDigitOfTheKey_data();
    void aTypeMakesItsDigitOfTheKey();
    void withoutATypeTheDigitIs0();
    void aCountryMakesTheEndOfTheKey();
    void aNameMakesNoKey();
    void anExistingIdentifierIsAskedAndCounted();
    void anExistingIdentifierRefusedLeavesTheKey();
    void anExistingIdentifierIsAskedOnceForEachCharacterThatMatches();
    void theCountIsThatOfAllKeysThatBeginSo();
    void anotherTypeIsAskedFor();
    void anotherCountryIsAskedFor();
    void clickingTheCheckedTypeAsksAgain();
    void aQuoteInTheIdentifierIsReported();
};

void TestNavKeys::aTypedIdentifierMakesTheKey()
{
    openNew();
    typeInto(*dialog, "leIden", "abb");
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABB"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FR"));
    QVERIFY(boxes->seen().isEmpty());
}

void TestNavKeys::anIdentifierEndsAt5Characters()
{
    openNew();
    typeInto(*dialog, "leIden", "abcdefg");
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABCDE"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABCDE1FR"));
}

void TestNavKeys::typingInTheMiddleOfAnIdentifierKeepsTheCursorThere()
{
    openNew();
    typeInto(*dialog, "leIden", "ad");
    auto* iden = widgetOf<QLineEdit>(*dialog, "leIden");
    QTest::keyClick(iden, Qt::Key_Left);
    QTest::keyClicks(iden, "bc");
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABCD"));
    QTest::keyClick(iden, Qt::Key_Backspace);
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABD1FR"));
}

void TestNavKeys::aTypeMakesItsDigitOfTheKey_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("key");
    QTest::newRow("VOR") << "rbVOR"
                         << "ABB1FR";
    QTest::newRow("TACAN") << "rbTACAN"
                           << "ABB2FR";
    QTest::newRow("NDB") << "rbNDB"
                         << "ABB5FR";
    QTest::newRow("VOR DME") << "rbVORDME"
                             << "ABB4FR";
    QTest::newRow("NDB DME") << "rbNDBDME"
                             << "ABB7FR";
}

void TestNavKeys::aTypeMakesItsDigitOfTheKey()
{
    QFETCH(QString, button);
    openNew();
    typeInto(*dialog, "leIden", "ABB");
    press(*dialog, button);
    QTEST(textOf(*dialog, "leUkey"), "key");
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{button});
}

void TestNavKeys::withoutATypeTheDigitIs0()
{
    openNew();
    uncheckAllIn(*dialog, "gbType");
    typeInto(*dialog, "leIden", "ABB");
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB0FR"));
}

void TestNavKeys::aCountryMakesTheEndOfTheKey()
{
    openNew();
    typeInto(*dialog, "leIden", "ABB");
    choose(*dialog, "cbCtry", "ES");
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1ES"));
    auto* country = widgetOf<QComboBox>(*dialog, "cbCtry");
    country->setCurrentIndex(country->findText("FRA"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FRA"));
}

void TestNavKeys::aNameMakesNoKey()
{
    openNew();
    typeInto(*dialog, "leName", "abbeville");
    QCOMPARE(textOf(*dialog, "leName"), QString("abbeville"));
    QCOMPARE(textOf(*dialog, "leIden"), QString());
    QCOMPARE(textOf(*dialog, "leUkey"), QString());
}

void TestNavKeys::anExistingIdentifierIsAskedAndCounted()
{
    world->sandbox.addNavaid({{"ukey", "ABB1FR"}});
    openNew();
    boxes->expectMessage(title, existsText("ABB"), QMessageBox::Yes);
    typeInto(*dialog, "leIden", "abb");
    QVERIFY(boxes->allUsed());
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FR1"));
}

void TestNavKeys::anExistingIdentifierRefusedLeavesTheKey()
{
    world->sandbox.addNavaid({{"ukey", "ABB1FR"}});
    openNew();
    boxes->expectMessage(title, existsText("ABB"), QMessageBox::No);
    typeInto(*dialog, "leIden", "abb");
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABB"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("AB1FR"));
}

void TestNavKeys::anExistingIdentifierIsAskedOnceForEachCharacterThatMatches()
{
    // Keys that begin with what is typed and the digit of a VOR.
    world->sandbox.addNavaid({{"ukey", "A1FR"}});
    world->sandbox.addNavaid({{"ukey", "AB1FR"}});
    world->sandbox.addNavaid({{"ukey", "ABB4FR"}});
    openNew();
    boxes->expectMessage(title, existsText("A"), QMessageBox::Yes);
    boxes->expectMessage(title, existsText("AB"), QMessageBox::Yes);
    typeInto(*dialog, "leIden", "abb");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 2);
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FR"));
}

void TestNavKeys::theCountIsThatOfAllKeysThatBeginSo()
{
    for (const char* key : {"ABB1FR", "ABB1FR1", "ABB1ES", "ABB4FR", "CABB1FR"})
        world->sandbox.addNavaid({{"ukey", key}});
    openNew();
    boxes->expectMessage(title, existsText("ABB"), QMessageBox::Yes);
    typeInto(*dialog, "leIden", "abb");
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FR3"));
}

void TestNavKeys::anotherTypeIsAskedFor()
{
    world->sandbox.addNavaid({{"ukey", "ABB4FR"}});
    openNew();
    typeInto(*dialog, "leIden", "abb");
    boxes->expectMessage(title, existsText("ABB"), QMessageBox::No);
    press(*dialog, "rbVORDME");
    QVERIFY(boxes->allUsed());
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FR"));
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbVORDME"});
}

void TestNavKeys::anotherCountryIsAskedFor()
{
    openRow({{"ukey", "ABB1FR"}, {"iden", "ABB"}, {"ntyp", 1}});
    boxes->expectMessage(title, existsText("ABB"), QMessageBox::Yes);
    auto* country = widgetOf<QComboBox>(*dialog, "cbCtry");
    country->setCurrentIndex(country->findText("ES"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1ES1"));
}

void TestNavKeys::clickingTheCheckedTypeAsksAgain()
{
    openRow({{"ukey", "ABB1FR"}, {"iden", "ABB"}, {"ntyp", 1}});
    boxes->expectMessage(title, existsText("ABB"), QMessageBox::No);
    press(*dialog, "rbVOR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABB1FR"));
}

void TestNavKeys::aQuoteInTheIdentifierIsReported()
{
    openNew();
    boxes->expectAnyMessage();
    typeInto(*dialog, "leIden", "\"");
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
    QVERIFY(boxes->seen().value(0).text.startsWith("One of the query failed to execute.Error detail: "
                                                   "SELECT COUNT(ukey) FROM NAV WHERE ukey LIKE \"\"1%\"; "));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("\"1FR"));
}

QTEST_MAIN(TestNavKeys)
#include "tst_navkeys.moc"
