// The feed of the map page out of the databases, one evaluation a stage.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "cnavglobalvar.h"
#include "mapscript.h"
#include "markerfeed.h"

#include <QDebug>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

// The rows are walked once: a forward-only query keeps none of them. It still stands before its first row after
// exec, so that first() works.
QSqlQuery walkOnce(const QString& connection)
{
    QSqlQuery query(QSqlDatabase::database(connection));
    query.setForwardOnly(true);
    return query;
}

QString batch(const QStringList& scripts)
{
    return scripts.join(QLatin1Char(';'));
}

// Airways as the page would get them. Returns the count of points sent.
int feedAirways(QSqlQuery& rows, const QString& country, MainWindow& window)
{
    int count = 0;
    QString airway;
    for (bool more = rows.first(); more; more = rows.next()) {
        if (rows.value(12).toString() != country && rows.value(16).toString() != country) {
            continue;
        }
        if (rows.value(2).toString() != airway) {
            // The row that opens an airway gives its level only, not its point.
            airway = rows.value(2).toString();
            window.runMapScript(mapscript::addAts(rows.value(7).toChar()));
            continue;
        }
        ++count;
        const mapscript::Place place = mapscript::storedPlace(rows.value(22).toDouble(), rows.value(23).toDouble());
        window.runMapScript(mapscript::addToAts(place, QStringLiteral("ATS")));
    }
    return count;
}

} // namespace

void MainWindow::readDataFromDB()
{
    QSqlQuery general = walkOnce(settings->dbGEN);
    settings->sqlMgr->selectAll(general, QStringLiteral("APT"));
    if (general.first()) {
        QStringList scripts = markerfeed::airports(general);
        qDebug() << QStringLiteral("Airport %1").arg(scripts.size());
        ui->debugText->append(tr("Airport: %1 éléments chargés").arg(scripts.size()));
        // The page decides what it shows of the airports: no script of their layer follows.
        runMapScript(batch(scripts << mapscript::pushApt()));
    }
    settings->sqlMgr->selectAll(general, QStringLiteral("NAV"));
    if (general.first()) {
        QStringList scripts = markerfeed::navaids(general);
        ui->debugText->append(tr("Navaid: %1 éléments chargés").arg(scripts.size()));
        qDebug() << QStringLiteral("Navaid %1").arg(scripts.size());
        scripts << mapscript::addNavMgr()
                << layerScripts({&MainWindow::actVor, &MainWindow::actNdbRte, &MainWindow::actNdbTerm});
        runMapScript(batch(scripts));
    }
    QSqlQuery waypoints = walkOnce(settings->dbWPT);
    waypoints.exec(QStringLiteral("SELECT * FROM WPT WHERE wloc = 78;"));
    if (waypoints.first()) {
        QStringList scripts = markerfeed::waypoints(waypoints);
        qDebug() << QStringLiteral("Waypoint: %1 éléments chargés").arg(scripts.size());
        ui->debugText->append(tr("Waypoint: %1 élément chargés").arg(scripts.size()));
        scripts << mapscript::addWptMgr()
                << layerScripts({&MainWindow::actWptRte, &MainWindow::actWptTerm, &MainWindow::actWptVfr});
        runMapScript(batch(scripts));
    }
    // No statement is executed in this version: the airways are counted as none.
    QSqlQuery airways(QSqlDatabase::database(settings->dbRTE));
    const int count = feedAirways(airways, settings->route, *this);
    qDebug() << QStringLiteral("ATS: %1 élément chargés").arg(count);
    ui->debugText->append(tr("ATS: %1 élément chargés").arg(count));
}
