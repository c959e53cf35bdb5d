// The page of the shared block against the link that reads it, and against a process that plays the simulator.
#include "External.h"
#include "blockpeer.h"
#include "formatpage.h"
#include "tracescript.h"

#include <QFile>
#include <QTimer>
#include <QtTest>

#include <cstddef>

namespace {

constexpr int never = 1 << 30; // milliseconds

} // namespace

class TestBlockPage : public QObject
{
    Q_OBJECT

    const FormatPage page{"block"};

    QString told(const QString& field) const
    {
        for (const auto& row : page.table("Layout")) {
            if (row["Field"] == field)
                return row["In the example"];
        }
        qFatal("no field %s", qPrintable(field));
    }

    static QByteArray block()
    {
        QFile file(NoBlock::path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void theFieldsStandThere()
    {
        const QMap<QString, size_t> places{
            {"latS", offsetof(AeoZephanNavRecord, latS)},
            {"lonS", offsetof(AeoZephanNavRecord, lonS)},
            {"heading", offsetof(AeoZephanNavRecord, heading)},
        };
        const auto rows = page.table("Layout");
        QCOMPARE(rows.size(), places.size());
        for (const auto& row : rows)
            QCOMPARE(size_t(row["Offset"].toInt()), places.value(row["Field"], 0));
    }

    void theLinkReadsTheExample()
    {
        const NoBlock clean;
        QFile file(NoBlock::path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(page.dump("Example"));
        file.close();

        CNavPlug plug(never);
        QVERIFY(plug.connected);
        QCOMPARE(double(plug.record->latS), told("latS").toDouble());
        QCOMPARE(double(plug.record->lonS), told("lonS").toDouble());
        QCOMPARE(double(plug.record->heading), told("heading").toDouble());
        QCOMPARE(tracescript::start(*plug.record), page.row("What the page is told", "first")["Script"]);
        QCOMPARE(tracescript::move(*plug.record, false), page.row("What the page is told", "further")["Script"]);
        QCOMPARE(tracescript::move(*plug.record, true),
                 page.row("What the page is told", "further, with \"Centre avion\"")["Script"]);
        // Brought to its size, and the simulator's bytes left alone.
        QCOMPARE(block(),
                 page.dump("Example").leftJustified(page.row("The block", "Size")["POSIX"].left(3).toInt(), 0));
    }

    void aSimulatorWritesTheExample()
    {
        const NoBlock clean;
        BlockPeer simulator;
        QVERIFY(simulator.publish(told("latS"), told("lonS"), told("heading")));
        QCOMPARE(block().left(80).toHex(' '), page.dump("Example").toHex(' '));
        QCOMPARE(block().size(), 256);
    }

    void theNameIsTheOneOfThePage()
    {
        const QString name = NoBlock::path().section('/', -1);
        QCOMPARE("/" + name, page.row("The block", "Name")["POSIX"].section('`', 1, 1));
    }
};

QTEST_GUILESS_MAIN(TestBlockPage)
#include "tst_blockpage.moc"
