// The interface's language, each system language in a process of its own.
#include "interfacelanguage.h"

#include "childprocess.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QtTest>

class TestInterfaceLanguage : public QObject
{
    Q_OBJECT

private slots:
    void languageOfTheSystem_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("answer");
        QTest::newRow("France") << "fr_FR.UTF-8"
                                << "fr French\n";
        QTest::newRow("Canada") << "fr_CA.UTF-8"
                                << "fr French\n";
        QTest::newRow("United States") << "en_US.UTF-8"
                                       << "en other\n";
        QTest::newRow("Germany") << "de_DE.UTF-8"
                                 << "de other\n";
        QTest::newRow("C is not French") << "C"
                                         << "C other\n";
    }

    void languageOfTheSystem()
    {
        QFETCH(QString, locale);
        const ChildRun run = runChildProcess({"--language"}, {{"LC_ALL", locale}, {"LANGUAGE", QString()}});
        QVERIFY(run.finished);
        QTEST(run.output, "answer");
    }

    void onlyExactlyFrIsFrench()
    {
        QVERIFY(isFrench("fr"));
        for (const char* other : {"FR", "Fr", "fra", "fr_FR", "en", ""})
            QVERIFY2(!isFrench(other), other);
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == "--language") {
        const QString language = systemLanguage();
        QTextStream(stdout) << language << (isFrench(language) ? " French" : " other") << Qt::endl;
        return 0;
    }
    TestInterfaceLanguage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_interfacelanguage.moc"
