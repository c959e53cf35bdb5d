// Every input that is kept goes through the fuzzer's function again, in an ordinary build.
#include "fuzzing.h"

#include <QDir>
#include <QFile>
#include <QtTest>

class TestKeptInputs : public QObject
{
    Q_OBJECT

private slots:
    void inputIsTaken_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* folder : {CORPUS, FIXTURES}) {
            const auto files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
            for (const QFileInfo& file : files)
                QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
    }

    void inputIsTaken()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        // A property that does not hold ends the process, with its text.
        QCOMPARE(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                        static_cast<std::size_t>(bytes.size())),
                 0);
    }

    void thereAreInputs()
    {
        QVERIFY(!QDir(CORPUS).entryList(QDir::Files).isEmpty());
    }
};

QTEST_MAIN(TestKeptInputs)
#include "tst_keptinputs.moc"
