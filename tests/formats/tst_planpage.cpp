// The page of the flight plan's file against its writer and its reader.
#include "formatpage.h"
#include "planpoints.h"
#include "planreader.h"
#include "plantext.h"

#include <QBuffer>
#include <QtTest>

#include <sstream>

namespace {

PlanFile read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readPlan(buffer, [] { return CFpLinePtr::create(); });
}

/// The points of the table, by hand of its values.
QList<CFpLinePtr> pointsOf(const FormatPage& page)
{
    const QString heading = "What the reader takes from it";
    QList<CFpLinePtr> points;
    for (const char* column : {"Point 1", "Point 2", "Point 3"}) {
        const auto value = [&](const QString& field) { return page.row(heading, field)[column]; };
        const CFpLinePtr point = CFpLinePtr::create();
        point->fpType = value("fpType");
        point->name = value("name");
        point->iden = value("iden");
        point->latS = value("latS").toDouble();
        point->lonS = value("lonS").toDouble();
        point->elev = value("elev").toInt();
        point->dbKey = value("dbKey");
        point->usage = value("usage");
        point->altd = value("altd").toInt();
        point->tkof = value("tkof");
        point->land = value("land");
        point->mark = value("mark");
        points << point;
    }
    return points;
}

} // namespace

class TestPlanPage : public QObject
{
    Q_OBJECT

    const FormatPage page{"plan"};

private slots:
    void theWriterMakesTheExample()
    {
        const QList<CFpLinePtr> points = pointsOf(page);
        QCOMPARE(planText(points, 3, 12000).join("").toUtf8(), page.example("Example", "fpl"));
        QVERIFY(page.names(planFileName(*points.first(), *points.last())));
    }

    void theReaderTakesTheValues()
    {
        const PlanFile plan = read(page.example("Example", "fpl"));
        const QList<CFpLinePtr> points = pointsOf(page);
        QCOMPARE(plan.lines.size(), points.size());
        QCOMPARE(plan.skipped, 0);
        QCOMPARE(plan.version, 0);
        for (int index = 0; index < points.size(); ++index) {
            const CFpLine& read = *plan.lines.at(index);
            const CFpLine& told = *points.at(index);
            QCOMPARE(read.fpType, told.fpType);
            QCOMPARE(read.name, told.name);
            QCOMPARE(read.iden, told.iden);
            QCOMPARE(read.latS, told.latS);
            QCOMPARE(read.lonS, told.lonS);
            QCOMPARE(read.elev, told.elev);
            QCOMPARE(read.dbKey, told.dbKey);
            QCOMPARE(read.usage, told.usage);
            QCOMPARE(read.altd, told.altd);
            QCOMPARE(read.tkof, told.tkof);
            QCOMPARE(read.land, told.land);
            QCOMPARE(read.mark, told.mark);
            QCOMPARE(read.navType, 0);
            QCOMPARE(read.freq, 0.0);
        }
    }

    void theTagsStandInTheWritersOrder()
    {
        QStringList written;
        for (const QString& line : planText(pointsOf(page), 1, 0).join("").split('\n')) {
            if (line.trimmed().startsWith('<') && !written.contains(line.trimmed()))
                written << line.trimmed();
        }
        QStringList told;
        for (const auto& row : page.table("Tags"))
            told << row["Tag's line"];
        QCOMPARE(told, written);
    }

    void badInputGivesWhatThePageTells()
    {
        for (const auto& row : page.table("What the reader makes of bad input")) {
            const PlanFile plan = read(row["Input"].toUtf8());
            QVERIFY2(plan.lines.size() == row["Points"].toInt(), qPrintable(row["Input"]));
            QVERIFY2(plan.skipped == row["Skipped"].toInt(), qPrintable(row["Input"]));
            for (const CFpLinePtr& point : plan.lines)
                QVERIFY2(point->latS == 0.0 && point->lonS == 0.0, qPrintable(row["Input"]));
        }
    }

    void whoOnlyFliesItTakesIdentitiesAndPlaces()
    {
        std::istringstream stream(page.example("Example", "fpl").toStdString());
        const PlanPoints plan = readPlanPoints(stream);
        const QList<CFpLinePtr> points = pointsOf(page);
        QCOMPARE(plan.waypoints, points.size());
        QCOMPARE(int(plan.points.size()), points.size());
        for (int index = 0; index < points.size(); ++index)
            QCOMPARE(QString::fromStdString(plan.points[size_t(index)].iden), points.at(index)->iden);
    }
};

QTEST_GUILESS_MAIN(TestPlanPage)
#include "tst_planpage.moc"
