// A plan file: it loads as far as it is a plan, and what it loads as is saved and loaded again without a difference.

#include "fuzzing.h"
#include "legs.h"
#include "plangrid.h"
#include "planreader.h"
#include "plantext.h"
#include "situationtext.h"
#include "textfile.h"

#include <QBuffer>
#include <QFile>
#include <QRegularExpression>
#include <QTableWidget>

#include <cmath>

namespace {

constexpr int ceiling = 12500;    // feet
constexpr int linesShown = 4;     // a grid costs more than all else, and each row is like the next
constexpr int linesAround = 10;   // of a saved plan: head and end
constexpr int linesOfAPoint = 22; // of a saved plan

CFpLinePtr newLine()
{
    CFpLinePtr line(new CFpLine);
    line->speed = 110;
    line->altd = 6500;
    return line;
}

PlanFile read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readPlan(buffer, newLine);
}

QString savedText(const QList<CFpLinePtr>& lines)
{
    return planText(lines, 1, ceiling).join(QString());
}

/// The text as it is after one more saving: a stray half of a surrogate pair does not survive, and a position that lies
/// south or west of zero by less than the last decimal loses its sign.
QString settled(const QString& text)
{
    static const QRegularExpression lostSign(QStringLiteral("-(?=0\\.000,)"));
    return utf8Text(text.toUtf8()).replace(lostSign, QString());
}

void checkSaved(const QList<CFpLinePtr>& lines)
{
    const QString text = savedText(lines);
    MUST(text.count(QLatin1Char('\n')) == linesAround + linesOfAPoint * lines.size());
    const QString path = scratchFile(QStringLiteral("PLAN.FPL"), "the plan before");
    MUST(writeTextFile(path, planText(lines, 1, ceiling)) == WriteEnd::Whole);
    QFile file(path);
    MUST(file.open(QIODevice::ReadOnly));
    const PlanFile again = readPlan(file, newLine);
    MUST(file.error() == QFileDevice::NoError);
    MUST(again.lines.size() == lines.size());
    MUST(again.skipped == 0 && again.versionSeen && again.version == 0);
    MUST(settled(savedText(again.lines)) == settled(text));
}

void checkLegs(const QList<CFpLinePtr>& lines)
{
    computeLegs(lines);
    for (const CFpLinePtr& line : lines) {
        MUST(std::isnan(line->route) || (line->route >= 0.0 && line->route < 360.0));
        MUST(std::isnan(line->dist) || (line->dist >= 0.0 && line->dist <= 10801.0)); // half way round the earth
    }
}

void checkScript(const QList<CFpLinePtr>& lines)
{
    int quotes = 0;
    for (const CFpLinePtr& line : lines) {
        quotes += line->name.count(QLatin1Char('"'));
    }
    const QString script = routeScript(lines);
    MUST(script.startsWith(QLatin1String("clearFP();")) && script.endsWith(QLatin1String(";pushFP();")));
    MUST(script.count(QLatin1Char('"')) == quotes + 2 * lines.size());
    MUST(!script.contains(QLatin1Char('\n')));
}

void checkGrid(const QList<CFpLinePtr>& lines)
{
    if (lines.size() > linesShown) {
        return;
    }
    auto& grid = lasting<QTableWidget>();
    grid.setColumnCount(10);
    fillPlanGrid(grid, lines);
    MUST(grid.rowCount() == lines.size());
    MUST(grid.currentRow() == lines.size() - 1);
    clearPlanGrid(grid);
    MUST(grid.rowCount() == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startApplication();
    const QByteArray bytes = inputBytes(data, size);
    const PlanFile plan = read(bytes);
    MUST(plan.lines.size() <= bytes.size());
    MUST(plan.version == 0);
    if (plan.lines.isEmpty()) {
        MUST(planText(plan.lines, 1, ceiling).isEmpty());
        return 0;
    }
    checkLegs(plan.lines);
    checkSaved(plan.lines);
    checkScript(plan.lines);
    checkGrid(plan.lines);
    MUST(situationText(plan.lines.first()->iden, *plan.lines.first()).size() == 12);
    return 0;
}
