// The page of the start situation's file against its writer.
#include "formatpage.h"
#include "situationtext.h"

#include <QtTest>

namespace {

CFpLine startAt(const QString& latS, const QString& lonS, const QString& heading)
{
    CFpLine start;
    start.latS = latS.toDouble();
    start.lonS = lonS.toDouble();
    start.heading = heading.toDouble();
    return start;
}

} // namespace

class TestSituationPage : public QObject
{
    Q_OBJECT

    const FormatPage page{"situation"};

private slots:
    void theWriterMakesTheExample()
    {
        const auto told = [this](const QString& value) {
            return page.row("What it is written from", value)["In the example"];
        };
        CFpLine start = startAt(told("latS"), told("lonS"), told("heading"));
        start.elev = told("elev").toInt();
        QCOMPARE(situationText(told("identity"), start).join("").toUtf8(), page.example("Example", "sit"));
    }

    void theNumbersAreWrittenSo()
    {
        for (const auto& row : page.table("Numbers")) {
            const CFpLine start = startAt(row["Latitude"], row["Longitude"], row["Heading"]);
            const QStringList lines = situationText("LFPO", start).join("").split('\n');
            const int position = lines.indexOf("\t\t<geop> ---- geo position lat lon elev ----");
            QCOMPARE(lines.value(position + 1), "\t\t" + row["`<geop>`, first line"]);
            QCOMPARE(lines.value(position + 2), "\t\t" + row["`<geop>`, second line"]);
            const int angles = lines.indexOf("\t\t<iang> ---- Inertial angular position ----");
            QCOMPARE(lines.value(angles + 1), "\t\t" + row["<iang>"]);
        }
    }

    void theFilesAreNamedSo()
    {
        for (const auto& row : page.table("Form")) {
            CFpLine airport;
            airport.name = row["Airport"];
            QCOMPARE(situationFileName(airport), row["File"]);
        }
    }
};

QTEST_GUILESS_MAIN(TestSituationPage)
#include "tst_situationpage.moc"
