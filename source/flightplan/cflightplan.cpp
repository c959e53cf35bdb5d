#include "cflightplan.h"

#include "caircraftdata.h"
#include "cnavglobalvar.h"
#include "legs.h"
#include "plangrid.h"
#include "planreader.h"
#include "plantext.h"
#include "platformpath.h"
#include "positions.h"
#include "situationtext.h"
#include "textfile.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace {

// Positions of the columns of RWY in SELECT *.
namespace Rwy {
enum Column
{
    rlen = 2,
    rhla = 14,
    rhlo = 15,
    rhht = 16,
    rhhd = 17
};
}

constexpr double noPosition = 1e-09; // arc seconds

} // namespace

CFlightPlan::CFlightPlan(QTableWidget* gridWidget, int)
    : navVar(CNavGlobalVar::instance()), aircraft(std::make_unique<CAircraftData>()), grid(gridWidget)
{
    startLine.clear();
}

CFlightPlan::~CFlightPlan() = default;

CFpLinePtr CFlightPlan::newLine()
{
    const CFpLinePtr line = CFpLinePtr::create();
    line->speed = aircraft->speedCruise;
    line->altd = aircraft->altCruise;
    return line;
}

void CFlightPlan::removeLine(int row)
{
    if (row >= 0 && row < lines.size()) {
        lines.removeAt(row);
    }
}

void CFlightPlan::moveLineUp(int row)
{
    if (row >= 1 && row < lines.size()) {
        lines.swapItemsAt(row, row - 1);
    }
}

void CFlightPlan::moveLineDown(int row)
{
    if (row >= 0 && row < lines.size() - 1) {
        lines.swapItemsAt(row, row + 1);
    }
}

void CFlightPlan::insertLine(const CFpLinePtr& line, int position)
{
    lines.insert(qBound(0, position, lines.size()), line);
    mapScript(); // for nothing: who inserts runs refresh next
}

void CFlightPlan::clearLines()
{
    lines.clear();
}

CFpLine CFlightPlan::startOfAirport(const QString& key)
{
    QSqlQuery query(QSqlDatabase::database(navVar->dbGEN));
    if (!navVar->sqlMgr->getRWY(key, true, query)) {
        SqlMgr::showQueryError(query);
        startLine.clear();
        return startLine;
    }
    int longest = 0;
    do {
        const int length = query.value(Rwy::rlen).toInt();
        if (longest < length) { // the first of several equally long ones stays
            longest = length;
            startLine.latS = query.value(Rwy::rhla).toDouble();
            startLine.lonS = query.value(Rwy::rhlo).toDouble();
            startLine.elev = truncatedInt(query.value(Rwy::rhht).toDouble());
            startLine.heading = query.value(Rwy::rhhd).toDouble();
        }
    } while (query.next());
    return startLine;
}

void CFlightPlan::computeLegs()
{
    ::computeLegs(lines);
}

QString CFlightPlan::mapScript() const
{
    return routeScript(lines);
}

QString CFlightPlan::refresh()
{
    computeLegs();
    const QString script = mapScript();
    fillPlanGrid(*grid, lines);
    buildFplText();
    return script;
}

void CFlightPlan::buildFplText()
{
    textLines = planText(lines, fplVersion, aircraft->ceiling);
}

bool CFlightPlan::saveFpl(const QString& fileName)
{
    ++fplVersion; // counts a save that fails, too
    buildFplText();
    return !textLines.isEmpty() && writeTextFileIn(QStringLiteral("%1\\Flightplan").arg(navVar->dirZephan.path()),
                                                   fileName, textLines) == WriteEnd::Whole;
}

QString CFlightPlan::loadFpl()
{
    const QString folder = QStringLiteral("%1\\Flightplan").arg(navVar->dirZephan.path());
    const QString path = QFileDialog::getOpenFileName(nullptr, tr("Ouvrir un plan de vol existant"),
                                                      platformPath(folder), tr("Fichier plan de vol (*.fpl)"));
    QFile file(path);
    // A pipe would be waited for, and a device need not end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const PlanFile plan = readPlan(file, [this] { return newLine(); });
    // What was read ahead of a failure, or of too much, would pass for a shorter plan, and its next save would replace
    // the whole one.
    const bool complete = file.error() == QFileDevice::NoError;
    file.close();
    if (!complete) {
        return {};
    }
    if (plan.lines.isEmpty() || plan.tooLong) {
        const QString text = plan.lines.isEmpty()
                                 ? tr("Le fichier %1 n'est pas un plan de vol : il ne contient aucun point")
                                 : tr("Le fichier %1 est trop grand pour un plan de vol : il n'est pas chargé");
        QMessageBox::warning(nullptr, tr("Chargement plan de vol"), text.arg(path));
        return {};
    }
    if (plan.versionSeen) {
        fplVersion = plan.version;
    }
    userWptCount += plan.lines.size();
    currentLine = plan.lines.last();
    lines += plan.lines;
    const QString script = refresh();
    if (plan.skipped > 0) {
        QMessageBox::warning(
            nullptr, tr("Chargement plan de vol"),
            tr("Le plan de vol %1 est endommagé, champs ignorés : %2").arg(path, QString::number(plan.skipped)));
    }
    return script;
}

void CFlightPlan::buildSitText()
{
    textLines.clear();
    if (lines.isEmpty()) {
        return;
    }
    // The raw values decide: a start south and west of the zero point is looked up again as well.
    if (startLine.latS < noPosition && startLine.lonS < noPosition) {
        startLine = startOfAirport(lines.first()->dbKey);
    }
    textLines = situationText(lines.first()->iden, startLine);
}

bool CFlightPlan::saveSit(const QString& fileName)
{
    buildSitText();
    return !textLines.isEmpty() &&
           writeTextFileIn(QStringLiteral("%1\\Saved Simulations").arg(navVar->dirZephan.path()), fileName,
                           textLines) == WriteEnd::Whole;
}
