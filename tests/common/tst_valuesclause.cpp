#include "valuesclause.h"

#include <QtTest>

class TestValuesClause : public QObject
{
    Q_OBJECT

private slots:
    void everyValueStandsBetweenApostrophes()
    {
        QCOMPARE(valuesClause({"0", "ABC", "", "1.5"}), QString("VALUES ('0','ABC','','1.5')"));
        QCOMPARE(valuesClause({"0"}), QString("VALUES ('0')"));
    }
    void nothingIsEscaped()
    {
        QCOMPARE(valuesClause({"L'Est", "b"}), QString("VALUES ('L'Est','b')"));
    }
    void whatLooksLikeAPlaceToFillStays()
    {
        QCOMPARE(valuesClause({"%2", "%1"}), QString("VALUES ('%2','%1')"));
    }
};

QTEST_APPLESS_MAIN(TestValuesClause)
#include "tst_valuesclause.moc"
