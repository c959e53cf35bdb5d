// The airways that pass through a point of the map.

#include "mainwindow.h"

#include "cnavglobalvar.h"
#include "keyedstatement.h"
#include "markertitle.h"

#include <QDebug>
#include <QInputDialog>
#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

constexpr int airwayName = 2; // column of ATSROUTE in SELECT *

// Segments end at labels.
QString labelOfTitle(const QString& title)
{
    return splitMarkerTitle(title.trimmed()).label;
}

// Each airway once, in the order of its first segment that ends at the point. A statement that fails finds none.
QStringList airwaysThrough(const QString& point, const QString& connection)
{
    QSqlQuery row(QSqlDatabase::database(connection));
    runKeyed(row, QStringLiteral(R"(SELECT * FROM ATSROUTE WHERE nvi1 = "%1" OR nvi2 = "%1")").arg(point),
             staysQuoted(point, QLatin1Char('"')));
    QStringList names;
    while (row.next()) {
        const QString name = row.value(airwayName).toString();
        if (!names.contains(name)) {
            names << name;
        }
    }
    return names;
}

// The segments are read and passed over: a chosen airway is neither drawn nor told.
bool readAirway(const QString& name, const QString& connection)
{
    QSqlQuery row(QSqlDatabase::database(connection));
    runKeyed(row, QStringLiteral(R"(SELECT * FROM ATSROUTE WHERE aaid = "%1")").arg(name),
             staysQuoted(name, QLatin1Char('"')));
    const bool found = row.first();
    while (row.next()) {
    }
    return found;
}

void tellNoAirway(const QString& point, QWidget* parent)
{
    QMessageBox::information(parent, MainWindow::tr("Voies aériennes"),
                             MainWindow::tr("Le point %1 n'appartient à aucune voie aérienne").arg(point));
}

} // namespace

void MainWindow::sATS(const QString& wptName, const QString& navName)
{
    if (wptName.isEmpty()) {
        return;
    }
    QString point = labelOfTitle(wptName);
    QStringList names = airwaysThrough(point, settings->dbRTE);
    if (names.isEmpty()) {
        // A waypoint on no airway is told of only where a navaid stands as well.
        if (navName.isEmpty()) {
            return;
        }
        point = labelOfTitle(navName);
        names = airwaysThrough(point, settings->dbRTE);
        if (names.isEmpty()) {
            tellNoAirway(point, this);
            return;
        }
    }
    bool accepted = false;
    const QString name =
        QInputDialog::getItem(this, tr("Voie aérienne"), tr("Liste des voies passant par le point %1").arg(point),
                              names, 0, false, &accepted);
    if (!accepted || name.isEmpty()) {
        return;
    }
    qDebug() << "selected" << name;
    if (!readAirway(name, settings->dbRTE)) {
        tellNoAirway(point, this);
    }
}
