// Marker titles and positions, as the page gives them to the slots of the real window. Each line of the input is a
// call: the first character names the slot, the rest is the title. Several in a row build, change and empty a plan.

#include "answeredboxes.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "fuzzing.h"
#include "mainwindow.h"
#include "markertitle.h"
#include "planreader.h"
#include "plantext.h"
#include "sandbox.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <cmath>

namespace {

constexpr int mostCalls = 16;

/// The window on databases with a few rows of each kind.
struct Session
{
    Session()
    {
        sandbox.addAirport();
        sandbox.addRunway();
        sandbox.addNavaid();
        sandbox.addNavaid({{"ukey", "BEAUNE"}, {"iden", "BN"}, {"name", "LE \"BN\""}, {"ntyp", 8}});
        sandbox.addWaypoint();
        sandbox.addWaypoint({{"ukey", "X1"}, {"name", "POINT-1"}});
        sandbox.addProcedureLeg();
        sandbox.addAirway();
        sandbox.addCountry(QStringLiteral("FR"), QStringLiteral("FRANCE"));
        window = new MainWindow;
        QDir::setCurrent(startFolder); // the fuzzer finds its inputs from there
    }
    ~Session()
    {
        QDir::setCurrent(sandbox.path(QStringLiteral("Tools/Trajector"))); // the window's end writes its settings
        delete window;
        QDir::setCurrent(startFolder);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    const QString startFolder = QDir::currentPath();
    Sandbox sandbox;
    MainWindow* window = nullptr;
};

Session& session()
{
    return lasting<Session>();
}

CFlightPlan& plan()
{
    return *CNavGlobalVar::instance()->flightPlan;
}

void onEveryDatabase(const char* statement)
{
    for (const QString& name : {dbfile::gen, dbfile::wpt, dbfile::route}) {
        MUST(QSqlQuery(QSqlDatabase::database(name)).exec(QLatin1String(statement)));
    }
}

int rowCount(const QString& file, const QString& table)
{
    return session().sandbox.sqlValue(file, QStringLiteral("SELECT count(*) FROM ") + table).toInt();
}

int editableRows()
{
    return rowCount(dbfile::gen, QStringLiteral("NAV")) + rowCount(dbfile::wpt, QStringLiteral("WPT"));
}

/// What the page knows when it calls.
struct Place
{
    double lat = 48.7;
    double lon = 2.4;
};

Place placeOf(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    return {parts.value(0).toDouble(), parts.value(1).toDouble()};
}

struct Call
{
    char slot;
    int mostAdded; ///< lines of the plan
    void (*run)(MainWindow& window, const QString& title, const Place& place);
};

const Call calls[] = {
    {'a', 1, [](MainWindow& window, const QString& title, const Place&) { window.sAddAptToFp(title); }},
    {'n', 1, [](MainWindow& window, const QString& title, const Place&) { window.sAddNavToFp(title); }},
    {'w', 1, [](MainWindow& window, const QString& title, const Place&) { window.sAddWptToFp(title); }},
    {'u', 1,
     [](MainWindow& window, const QString& title, const Place& place) {
         window.sAddNewWptToFp(title, place.lat, place.lon);
     }},
    {'r', 0, [](MainWindow& window, const QString& title, const Place&) { window.doViewRwy(title); }},
    {'t', 0,
     [](MainWindow& window, const QString& title, const Place&) {
         window.sATS(title.section(QLatin1Char('\t'), 0, 0), title.section(QLatin1Char('\t'), 1));
     }},
    {'N', 0,
     [](MainWindow& window, const QString& title, const Place& place) {
         window.sAddNavToDB(title, place.lat, place.lon);
     }},
    {'W', 0,
     [](MainWindow& window, const QString& title, const Place& place) {
         window.sAddWptToDB(title, place.lat, place.lon);
     }},
    {'d', 0, [](MainWindow& window, const QString& title, const Place&) { window.sDelNavFromDB(title); }},
    {'D', 0, [](MainWindow& window, const QString& title, const Place&) { window.sDelWptFromDB(title); }},
    {'P', 0, [](MainWindow& window, const QString& title, const Place&) { window.delAllSIDSTAR(title); }},
    {'h', 0, [](MainWindow& window, const QString& title, const Place&) { window.showSidStar(title); }},
    {'v', 0, [](MainWindow& window, const QString& title, const Place&) { window.doData(title); }},
    {'c', 0,
     [](MainWindow& window, const QString&, const Place& place) {
         window.doCenter(place.lat, place.lon);
         window.doMoveSIT(place.lat, place.lon);
         window.sAddSitToFp(place.lat, place.lon);
     }},
    {'-', 0, [](MainWindow& window, const QString&, const Place&) { window.sFpLineDel(); }},
    {'^', 0, [](MainWindow& window, const QString&, const Place&) { window.sFpLineUp(); }},
    {'_', 0, [](MainWindow& window, const QString&, const Place&) { window.sFpLineDown(); }},
};

void checkTitle(const QString& title)
{
    const MarkerTitle parts = splitMarkerTitle(title);
    const QLatin1Char dash('-');
    MUST(!parts.label.contains(dash) && !parts.key.contains(dash));
    MUST(parts.hasKey == title.contains(dash));
    const QString joined = parts.hasKey ? parts.label + dash + parts.key : parts.label;
    MUST(title == joined || title.startsWith(joined + dash));
}

void checkCall(const Call& call, const QString& title, const Place& place, bool goOn)
{
    const int lines = plan().lines.size();
    const int rows = editableRows();
    call.run(*session().window, title, place);
    MUST(plan().lines.size() <= lines + call.mostAdded);
    MUST(plan().lines.size() >= (call.slot == '-' ? lines - 1 : lines));
    MUST(goOn || editableRows() == rows); // a question that is answered with Cancel costs nothing
    MUST(editableRows() <= rows);         // and the dialogs were closed as they opened
}

/// A plan whose names fit into a line each is read back as it was saved.
void checkPlan()
{
    const QString text = planText(plan().lines, 1, 0).join(QString());
    QByteArray bytes = text.toUtf8();
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    const PlanFile again = readPlan(file, [] { return CFpLinePtr(new CFpLine); });
    MUST(again.lines.size() == plan().lines.size());
    MUST(again.skipped == 0);
}

void makeCalls(const QByteArray& input)
{
    Place place;
    bool goOn = false;
    int made = 0;
    for (const QByteArray& line : input.split('\n')) {
        const char slot = line.isEmpty() ? '\0' : line.at(0);
        const QString title = QString::fromUtf8(line.constData() + 1, qMax(0, line.size() - 1));
        if (slot == 'p') {
            place = placeOf(title);
        } else if (slot == 'x') {
            goOn = !goOn;
            answerBoxes(goOn);
        }
        for (const Call& call : calls) {
            if (call.slot == slot && made++ < mostCalls) {
                checkTitle(title);
                checkCall(call, title, place, goOn);
            }
        }
    }
}

/// Everything as it was before the input.
void startAnew()
{
    answerBoxes(true);
    MUST(session().window->askResetPlan());
    answerBoxes(false);
    forgetBoxes();
    plan().userWptCount = 0;
    plan().startLine.clear();
    qDeleteAll(session().window->findChildren<QDialog*>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

/// Found by name by LeakSanitizer: the web engine and the window keep much to the end of the process.
extern "C" int __lsan_is_turned_off() // NOLINT(bugprone-reserved-identifier): LeakSanitizer's own
{
    return 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startApplication();
    session();
    onEveryDatabase("BEGIN");
    makeCalls(inputBytes(data, size));
    checkPlan();
    startAnew();
    onEveryDatabase("ROLLBACK");
    return 0;
}
