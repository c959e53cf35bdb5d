#include "pointsearch.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QHash>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int airportOfRunway = 1; ///< column `rapt` of RWY
/// From so many airports on, one walk through the runways serves them all. Every single query walks through the
/// table too, since no index serves LIKE: a world's airports would take minutes.
constexpr int manyAirports = 8;

using Lookup = bool (SqlMgr::*)(const QString&, bool, QSqlQuery&);
using FillLine = void (CFpLine::*)(const QSqlQuery&);

// The rows are walked once: a forward-only query keeps none of them.
QSqlQuery walkOnce(const QString& connection)
{
    QSqlQuery query(QSqlDatabase::database(connection));
    query.setForwardOnly(true);
    return query;
}

QVector<FoundPoint> findRows(CFlightPlan& plan, const QString& connection, Lookup lookup, FillLine fill,
                             const QString& text, bool exact)
{
    QVector<FoundPoint> found;
    SqlMgr& sqlMgr = *plan.navVar->sqlMgr;
    QSqlQuery row = walkOnce(connection);
    for (bool more = (sqlMgr.*lookup)(text, exact, row); more; more = row.next()) {
        const CFpLinePtr line = plan.newLine();
        ((*line).*fill)(row);
        found.append({line, {}});
    }
    return found;
}

void appendEnds(CFlightPlan& plan, const QSqlQuery& row, FoundPoint& airport)
{
    const CFpLinePtr high = plan.newLine();
    high->fromRwyHigh(row);
    const CFpLinePtr low = plan.newLine();
    low->fromRwyLow(row);
    airport.runways << high << low;
}

void findRunways(CFlightPlan& plan, FoundPoint& airport, bool exact)
{
    QSqlQuery row = walkOnce(plan.navVar->dbGEN);
    for (bool more = plan.navVar->sqlMgr->getRWY(airport.line->dbKey, exact, row); more; more = row.next()) {
        appendEnds(plan, row, airport);
    }
}

// LIKE knows capitals and small letters apart from each other only beyond ASCII.
QString folded(QString text)
{
    for (QChar& c : text) {
        if (c >= QLatin1Char('a') && c <= QLatin1Char('z')) {
            c = QChar(c.unicode() - 'a' + 'A');
        }
    }
    return text;
}

// Wildcards of LIKE, and the quote that ends the key inside the statement, ask for a statement of their own.
bool isPlainKey(const QString& key)
{
    const auto isSpecial = [](QChar c) {
        return c == QLatin1Char('%') || c == QLatin1Char('_') || c == QLatin1Char('"') || c.isNull();
    };
    return !key.isEmpty() && std::none_of(key.cbegin(), key.cend(), isSpecial);
}

QString commonPrefix(const QString& a, const QString& b)
{
    const auto end = std::mismatch(a.cbegin(), a.cend(), b.cbegin(), b.cend()).first;
    const QString prefix = a.left(static_cast<int>(end - a.cbegin()));
    // Half of a surrogate pair is no character that the database could find.
    return !prefix.isEmpty() && prefix.back().isHighSurrogate() ? prefix.chopped(1) : prefix;
}

// Runways whose key begins with the key of one of the airports, out of all those that begin with what the keys share.
void findRunwaysTogether(CFlightPlan& plan, QVector<FoundPoint>& airports)
{
    QHash<QString, QVector<int>> airportsOfKey;
    QSet<int> lengths;
    QString shared;
    for (int i = 0; i < airports.size(); ++i) {
        const QString key = folded(airports.at(i).line->dbKey);
        if (!isPlainKey(key)) {
            findRunways(plan, airports[i], false);
            continue;
        }
        shared = lengths.isEmpty() ? key : commonPrefix(shared, key);
        airportsOfKey[key] << i;
        lengths << key.size();
    }
    if (airportsOfKey.isEmpty()) {
        return;
    }
    QSqlQuery row = walkOnce(plan.navVar->dbGEN);
    for (bool more = plan.navVar->sqlMgr->getRWY(shared, false, row); more; more = row.next()) {
        const QString runwayKey = folded(row.value(airportOfRunway).toString());
        for (int length : lengths) {
            const QVector<int> fitting =
                length <= runwayKey.size() ? airportsOfKey.value(runwayKey.left(length)) : QVector<int>();
            for (int i : fitting) {
                appendEnds(plan, row, airports[i]);
            }
        }
    }
}

} // namespace

QVector<FoundPoint> findAirports(CFlightPlan& plan, const QString& text, bool exact)
{
    QVector<FoundPoint> found = findRows(plan, plan.navVar->dbGEN, &SqlMgr::getAPT, &CFpLine::fromApt, text, exact);
    if (!exact && found.size() >= manyAirports) {
        findRunwaysTogether(plan, found);
        return found;
    }
    for (FoundPoint& airport : found) {
        findRunways(plan, airport, exact);
    }
    return found;
}

QVector<FoundPoint> findNavaids(CFlightPlan& plan, const QString& text, bool exact)
{
    return findRows(plan, plan.navVar->dbGEN, &SqlMgr::getNAV, &CFpLine::fromNav, text, exact);
}

QVector<FoundPoint> findWaypoints(CFlightPlan& plan, const QString& text, bool exact)
{
    return findRows(plan, plan.navVar->dbWPT, &SqlMgr::getWPT, &CFpLine::fromWpt, text, exact);
}
