// The page of the aircraft archives against their reader, and against the demonstration's writer.
#include "aircraftarchives.h"
#include "cpodmgr.h"
#include "formatpage.h"
#include "podwriter.h"

#include <QTemporaryDir>
#include <QtTest>

class TestArchivePage : public QObject
{
    Q_OBJECT

    const FormatPage page{"archive"};
    QTemporaryDir folder;
    QString path;

    int number(const QString& field) const
    {
        for (const auto& row : page.table("Layout")) {
            if (row["Field of `CPodMgr`"] == field)
                return row["In the example"].toInt();
        }
        qFatal("no field %s", qPrintable(field));
    }

private slots:
    void initTestCase()
    {
        path = folder.filePath("example.pod");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(page.dump("Example"));
    }

    void theHeaderIsReadSo()
    {
        const CPodMgr pod(path);
        const QMap<QString, qint32> numbers{
            {"headerWord1", pod.headerWord1}, {"entryCount", pod.entryCount},
            {"headerWord2", pod.headerWord2}, {"headerWord3", pod.headerWord3},
            {"headerWord4", pod.headerWord4}, {"directoryOffset", pod.directoryOffset},
            {"headerWord5", pod.headerWord5}, {"headerWord6", pod.headerWord6},
        };
        const QMap<QString, QString> texts{
            {"magic", pod.magic},
            {"headerText1", pod.headerText1},
            {"headerText2", pod.headerText2},
            {"headerText3", pod.headerText3},
        };
        int end = 0;
        for (const auto& row : page.table("Layout")) {
            const QString field = row["Field of `CPodMgr`"];
            QCOMPARE(row["Offset"].toInt(), end);
            end += row["Size"].toInt();
            if (texts.contains(field)) {
                QCOMPARE(texts[field], row["In the example"].leftJustified(row["Size"].toInt(), QChar(0)));
            } else {
                QVERIFY2(numbers.contains(field), qPrintable(field));
                QCOMPARE(numbers[field], row["In the example"].toInt());
            }
        }
        QCOMPARE(end, 276);
    }

    void theEntriesAreReadSo()
    {
        const CPodMgr pod(path);
        const auto told = page.table("Entries");
        QCOMPARE(pod.entries.size(), told.size());
        for (int index = 0; index < told.size(); ++index) {
            const PodEntry& entry = *pod.entries.at(index);
            QCOMPARE(entry.name, told.at(index)["Name"]);
            QCOMPARE(entry.size, told.at(index)["Size"].toInt());
            QCOMPARE(entry.offset, told.at(index)["Offset"].toInt());
        }
    }

    void theAircraftIsReadSo()
    {
        const CAircraftData aircraft = readAircraftArchive(path);
        const QMap<QString, QString> values{
            {"make", aircraft.make},
            {"acid", aircraft.acid},
            {"speedMax", QString::number(aircraft.speedMax)},
            {"speedCruise", QString::number(aircraft.speedCruise)},
            {"speedVert", QString::number(aircraft.speedVert)},
            {"speedApp", QString::number(aircraft.speedApp)},
            {"ceiling", QString::number(aircraft.ceiling)},
        };
        CPodMgr pod(path);
        int told = 0;
        for (const auto& row : page.table("Texts")) {
            QVERIFY2(pod.findBySuffix(row["Entry"]), qPrintable(row["Entry"]));
            QVERIFY2(pod.content.contains(row["Tag"]), qPrintable(row["Tag"]));
            QCOMPARE(values[row["Field of `CAircraftData`"]], row["In the example"]);
            ++told;
        }
        QCOMPARE(told, values.size());
    }

    void theDemonstrationsWriterMakesTheExample()
    {
        const QByteArray bytes = page.dump("Example");
        QVector<PodContent> contents;
        for (const auto& row : page.table("Entries"))
            contents << PodContent{row["Name"].toUtf8(), bytes.mid(row["Offset"].toInt(), row["Size"].toInt())};
        QCOMPARE(podBytes(contents).toHex(' '), bytes.toHex(' '));
        QCOMPARE(number("directoryOffset"), 276 + contents[0].data.size() + contents[1].data.size());
    }
};

QTEST_GUILESS_MAIN(TestArchivePage)
#include "tst_archivepage.moc"
