#include "markertitle.h"

#include <QtTest>

class TestMarkerTitle : public QObject
{
    Q_OBJECT

private slots:
    void splits_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("hasKey");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("key");
        QTest::newRow("label and key") << "CGO-CGO4FR" << true << "CGO"
                                       << "CGO4FR";
        QTest::newRow("no key") << "CGO" << false << "CGO"
                                << "";
        QTest::newRow("empty key") << "CGO-" << true << "CGO"
                                   << "";
        QTest::newRow("empty label") << "-CGO4FR" << true << ""
                                     << "CGO4FR";
        QTest::newRow("a dash in the label") << "A-B-ABFR" << true << "A"
                                             << "B";
        QTest::newRow("two dashes") << "A--ABFR" << true << "A"
                                    << "";
        QTest::newRow("white space") << " A - K " << true << " A "
                                     << " K ";
        QTest::newRow("nothing") << "" << false << ""
                                 << "";
    }
    void splits()
    {
        QFETCH(QString, title);
        const MarkerTitle parts = splitMarkerTitle(title);
        QTEST(parts.hasKey, "hasKey");
        QTEST(parts.label, "label");
        QTEST(parts.key, "key");
    }
};

QTEST_APPLESS_MAIN(TestMarkerTitle)
#include "tst_markertitle.moc"
