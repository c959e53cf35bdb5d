// The country list that both dialogs share.
#include "boxresponder.h"
#include "cdialogwpt.h"
#include "cnavglobalvar.h"
#include "countrylist.h"
#include "editingworld.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QtTest>

class TestCountryList : public QObject
{
    Q_OBJECT

private slots:
    void allCodesInTheOrderOfTheTable();
    void aTableOfManyCountriesIsReadWhole();
    void theTableIsNotLockedAfterwards();
    void buildingAndSelectingAreSilent();
    void lettersOfAnotherCaseAreAnotherCountry();
    void anUnknownCountryIsKept();
    void aChoiceReplacesAnUnknownCountry();
    void aDatabaseWithoutTheTableGivesNoCountry();
    void withoutADatabaseThereIsNoCountry();
};

void TestCountryList::allCodesInTheOrderOfTheTable()
{
    EditingWorld world;
    QComboBox box;
    const CountryList countries(&box, dbfile::gen);
    QStringList codes;
    for (int i = 0; i < box.count(); ++i)
        codes << box.itemText(i);
    QCOMPARE(codes, (QStringList{"DE", "ES", "FR", "FRA"}));
    QCOMPARE(countries.code(), QString("DE"));
}

void TestCountryList::aTableOfManyCountriesIsReadWhole()
{
    EditingWorld world;
    world.sandbox.sql(dbfile::gen, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 700) "
                                   "INSERT INTO CTY SELECT 'C' || i, '' FROM n");
    QComboBox box;
    CountryList countries(&box, dbfile::gen);
    QCOMPARE(box.count(), 704);
    countries.select("C700");
    QCOMPARE(box.currentText(), QString("C700"));
    QCOMPARE(countries.code(), QString("C700"));
}

void TestCountryList::theTableIsNotLockedAfterwards()
{
    EditingWorld world;
    world.sandbox.sql(dbfile::gen, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 700) "
                                   "INSERT INTO CTY SELECT 'C' || i, '' FROM n");
    QComboBox box;
    const CountryList countries(&box, dbfile::gen);
    // The simulator, which writes while the dialog is open.
    {
        QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "simulator");
        other.setDatabaseName(world.sandbox.path("SQL/GEN.db"));
        other.setConnectOptions("QSQLITE_BUSY_TIMEOUT=0");
        QVERIFY(other.open());
        QSqlQuery query(other);
        QVERIFY(query.exec("BEGIN EXCLUSIVE"));
        QVERIFY(query.exec("COMMIT"));
    }
    QSqlDatabase::removeDatabase("simulator");
}

void TestCountryList::buildingAndSelectingAreSilent()
{
    EditingWorld world;
    QComboBox box;
    QSignalSpy changes(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    CountryList countries(&box, dbfile::gen);
    countries.select("FR");
    countries.select("QQ");
    QCOMPARE(changes.count(), 0);
    box.setCurrentIndex(1);
    QCOMPARE(changes.count(), 1);
}

void TestCountryList::lettersOfAnotherCaseAreAnotherCountry()
{
    EditingWorld world;
    QComboBox box;
    CountryList countries(&box, dbfile::gen);
    countries.select("fr");
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(countries.code(), QString("fr"));
}

void TestCountryList::anUnknownCountryIsKept()
{
    EditingWorld world;
    QComboBox box;
    CountryList countries(&box, dbfile::gen);
    countries.select("QQ");
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(countries.code(), QString("QQ"));
}

void TestCountryList::aChoiceReplacesAnUnknownCountry()
{
    EditingWorld world;
    QComboBox box;
    CountryList countries(&box, dbfile::gen);
    countries.select("QQ");
    box.setCurrentIndex(box.findText("ES"));
    QCOMPARE(countries.code(), QString("ES"));
}

void TestCountryList::aDatabaseWithoutTheTableGivesNoCountry()
{
    BoxResponder boxes;
    EditingWorld world;
    QComboBox box;
    CountryList countries(&box, dbfile::wpt);
    QCOMPARE(box.count(), 0);
    QCOMPARE(countries.code(), QString());
    countries.select("FR");
    QCOMPARE(countries.code(), QString("FR"));
}

void TestCountryList::withoutADatabaseThereIsNoCountry()
{
    BoxResponder boxes;
    const Sandbox sandbox(Sandbox::Databases::None);
    CDialogWpt dialog(3600.0, 3600.0, nullptr);
    present(dialog);
    QCOMPARE(widgetOf<QComboBox>(dialog, "cbCtry")->count(), 0);
    typeInto(dialog, "leName", "abc");
    QCOMPARE(textOf(dialog, "leUkey"), QString("ABC"));
}

QTEST_MAIN(TestCountryList)
#include "tst_countrylist.moc"
