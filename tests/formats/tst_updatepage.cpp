// The page of the update files against their reader and their writer.
#include "formatpage.h"
#include "updateline.h"
#include "updatestatements.h"
#include "updateworld.h"

#include <QtTest>

namespace {

QString fileOf(const QString& group)
{
    const QMap<QString, QString> files{{"GEN", dbfile::gen}, {"WPT", dbfile::wpt}, {"TXY", dbfile::txy}};
    return files.value(group);
}

QString lineStart(const UpdateStatement& statement)
{
    return QString("%1;%2;+;").arg(statement.database, statement.table);
}

QString hexadecimalFields(const UpdateStatement& statement)
{
    QStringList numbers;
    for (const HexadecimalField& field : statement.hexadecimal)
        numbers << QString::number(field.field);
    return numbers.isEmpty() ? "none" : numbers.join(", ");
}

} // namespace

class TestUpdatePage : public QObject
{
    Q_OBJECT

    const FormatPage page{"update"};

private slots:
    void theTablesAreThose()
    {
        const auto rows = page.table("Tables");
        QCOMPARE(rows.size(), int(updateStatements().size()));
        for (int index = 0; index < rows.size(); ++index) {
            const UpdateStatement& statement = updateStatements().at(size_t(index));
            const auto& row = rows.at(index);
            QCOMPARE(row["Line begins"], lineStart(statement));
            QCOMPARE(row["Columns"].toInt(), statement.columns);
            QCOMPARE(row["Fields"].toInt(), statement.lastField + 1);
            QCOMPARE(row["Hexadecimal fields"], hexadecimalFields(statement));
        }
    }

    void theExampleLeavesThat()
    {
        UpdateWorld world;
        world.sandbox.addNavaid({{"ukey", "OLD1FR"}});
        QVERIFY(world.importToTheEnd(page.example("Example", "csv")));
        for (const auto& row : page.table("Example")) {
            const QVariant found = world.sandbox.sqlValue(fileOf(row["Database"]), row["Query"]);
            QVERIFY2(found.toString() == row["Value"], qPrintable(row["Query"]));
        }
    }

    void theWriterMakesTheLinesOfAllNavaids()
    {
        UpdateWorld world;
        QVERIFY(world.importToTheEnd(page.example("Example", "csv")));
        world.boxes.expectAnyMessage();
        QVERIFY(world.exchange.exportAllNAV(dbfile::gen, world.sandbox.path("nav.CSV")));
        QCOMPARE(world.sandbox.readFile("nav.CSV"), page.example("What is written", "csv"));
    }

    void theDigitsBecomeThoseBytes()
    {
        for (const auto& row : page.table("Hexadecimal fields")) {
            const QByteArray bytes = decodeHexadecimal(row["Digits"], row["Way"] == "one");
            QCOMPARE(QString::fromLatin1(bytes.toHex()), row["Bytes"]);
        }
    }

    void badLinesAreToldSo()
    {
        for (const auto& row : page.table("What the reader makes of bad lines")) {
            UpdateWorld world;
            const bool goesOn = row["Goes on"] == "yes";
            world.sandbox.addNavaid();
            world.boxes.expectAnyMessage();
            const QString path = world.write(row["Line"].toUtf8() + '\n' + navaidLine("NEXT") + '\n');
            if (goesOn)
                world.expectImported(path);
            QVERIFY2(world.import(path) == goesOn, qPrintable(row["Line"]));
            const SeenBox box = world.boxes.seen().value(0);
            QVERIFY2(box.title == row["Box"], qPrintable(row["Line"]));
            QVERIFY2(box.text.startsWith(row["Its text begins"]), qPrintable(box.text));
            const QVariant rows = world.sandbox.sqlValue(dbfile::gen, "SELECT COUNT(*) FROM NAV");
            QVERIFY2(rows.toInt() == (goesOn ? 2 : 1), qPrintable(row["Line"]));
        }
    }
};

QTEST_MAIN(TestUpdatePage)
#include "tst_updatepage.moc"
