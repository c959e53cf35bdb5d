// The feed of the map page, against a bare loop that reads the same columns of the same rows and does nothing with
// them.
#include "benchwindow.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "measure.h"

#include <QApplication>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

/// The page keeps what it was fed; each round starts from the state that a load of the page gives.
const char* const emptyPage = R"js(
    [ArptMgr, VORMgr, NDBRteMgr, NDBTermMgr, WPTRteMgr, WPTTermMgr, WPTVfrMgr].forEach(function (manager) {
        manager.clearMarkers();
    });
    [listApt, listVOR, listNDBRte, listNDBTerm, listWptRte, listWptTerm, listWptVfr].forEach(function (list) {
        list.length = 0;
    });
)js";

struct Stage
{
    QString connection;
    QString statement;
    int countryColumn;
    QVector<int> columns; ///< read of the rows that the map shows
};

QVector<Stage> stages()
{
    const CNavGlobalVar* global = CNavGlobalVar::instance();
    return {{global->dbGEN, "SELECT * from APT;", 5, {3, 4, 9, 10}},
            {global->dbGEN, "SELECT * from NAV;", 7, {1, 2, 3, 4, 9, 11, 12, 13}},
            {global->dbWPT, "SELECT * FROM WPT WHERE wloc = 78;", 4, {1, 2, 3, 8, 9, 10}}};
}

/// Returns the number of rows of the map, so that the reading is not thrown away.
int readBare(const QVector<Stage>& all)
{
    int shown = 0;
    for (const Stage& stage : all) {
        QSqlQuery query(QSqlDatabase::database(stage.connection));
        query.exec(stage.statement);
        while (query.next()) {
            if (query.value(stage.countryColumn).toString() != QLatin1String("FR")) {
                continue;
            }
            ++shown;
            for (int column : stage.columns) {
                const QVariant value = query.value(column);
                Q_UNUSED(value)
            }
        }
    }
    return shown;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    enterSimulator(takeMeasureOptions(application.arguments()).value(0));
    const int rounds = roundsOf(9);
    MainWindow window;
    window.show();
    waitUntilLoaded(window);

    int shown = 0;
    const QVector<Stage> all = stages();
    std::vector<double> feedTimes;
    std::vector<double> bareTimes;
    // In turns, so that both meet the same weather of the machine; the first round is not counted.
    for (int round = 0; round <= rounds; ++round) {
        window.runMapScript(emptyPage);
        const double feed = elapsedMs([&] { QMetaObject::invokeMethod(&window, "readDataFromDB"); });
        const double bare = elapsedMs([&] { shown = readBare(all); });
        if (round > 0) {
            feedTimes.push_back(feed);
            bareTimes.push_back(bare);
        }
    }
    const double feed = median(feedTimes);
    const double bare = median(bareTimes);

    const QString subject = "population";
    printFigure({subject, "rows that the map shows", static_cast<double>(shown), "rows"});
    printFigure({subject, "readDataFromDB", feed, "ms"});
    printFigure({subject, "the same rows by a bare QSqlQuery loop", bare, "ms"});
    printFigure({subject, "readDataFromDB to the bare loop", feed / bare, "", 3.0});
}
