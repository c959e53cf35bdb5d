// An update file, imported into real databases: it stops where it must and nowhere else, and every row that it wrote
// is exported and imported again without a difference.

#include "answeredboxes.h"
#include "ciodatabase.h"
#include "databaselayout.h"
#include "fuzzing.h"
#include "sandbox.h"
#include "updateline.h"
#include "updaterows.h"
#include "updatestatements.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>

namespace {

class Variables : public CGlobalVar
{
public:
    void saveSettings() override {}
    void loadSettings() override {}
};

/// The databases of a simulator, and a folder for those of the map data.
struct Simulator
{
    Simulator()
    {
        variables.dirZephan.setPath(sandbox.root());
        variables.init();
        variables.dirOSM.setPath(sandbox.path(QStringLiteral("OSM")));
        MUST(QDir().mkpath(variables.dirOSM.path()));
        QDir::setCurrent(startFolder); // the fuzzer finds its inputs from there
    }

    const QString startFolder = QDir::currentPath();
    Sandbox sandbox;
    Variables variables;
};

Simulator& simulator()
{
    return lasting<Simulator>();
}

const DatabaseLayout& layoutOf(const QString& group)
{
    const auto& layouts = databaseLayouts();
    return *std::find_if(layouts.begin(), layouts.end(),
                         [&group](const DatabaseLayout& layout) { return layout.group == group; });
}

QSqlDatabase databaseOf(const UpdateStatement& statement)
{
    return QSqlDatabase::database(simulator().variables.*layoutOf(statement.database).dbName);
}

QByteArrayList linesOf(const QByteArray& bytes)
{
    QByteArrayList lines = bytes.split('\n');
    if (lines.last().isEmpty()) {
        lines.removeLast(); // what ends the last line starts no further one
    }
    return lines;
}

/// What becomes of a file, told from its lines alone.
struct Fate
{
    bool refused = false;
    bool leavesTheFolder = false;           ///< the map data's database is named by the file, and may lie anywhere
    QVector<const UpdateStatement*> tables; ///< those that a line names
};

const UpdateStatement* tableOf(const QByteArrayList& fields)
{
    const auto& statements = updateStatements();
    const auto found = std::find_if(statements.begin(), statements.end(), [&](const UpdateStatement& statement) {
        return statement.database == QString::fromLatin1(fields.first()) &&
               statement.table == QString::fromLatin1(fields.value(1));
    });
    return found == statements.end() ? nullptr : &*found;
}

Fate fateOf(const QByteArray& bytes)
{
    Fate fate;
    const QByteArrayList lines = linesOf(bytes);
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArrayList fields = QByteArray(lines.at(i).trimmed().constData()).split(';');
        if (fields.first() == "OSM") {
            fate.leavesTheFolder = i + 1 < lines.size() && lines.at(i + 1).contains('/');
            return fate;
        }
        const UpdateStatement* table = tableOf(fields);
        if (table == nullptr) {
            fate.refused = true;
            return fate;
        }
        if (!fate.tables.contains(table)) {
            fate.tables.append(table);
        }
    }
    return fate;
}

/// What an input writes is gone at its end, so that the next one starts as it did.
class TakenBack
{
public:
    explicit TakenBack(const Fate& fate) : tables(fate.tables)
    {
        forgetBoxes();
        onEachDatabase("BEGIN");
    }
    ~TakenBack()
    {
        onEachDatabase("ROLLBACK");
        if (!simulator().variables.dbOSM.isEmpty()) {
            closeMapData();
        }
    }
    TakenBack(const TakenBack&) = delete;
    TakenBack& operator=(const TakenBack&) = delete;

    void startAnew()
    {
        forgetBoxes();
        onEachDatabase("ROLLBACK");
        onEachDatabase("BEGIN");
    }

private:
    void onEachDatabase(const char* statement)
    {
        QStringList done;
        for (const UpdateStatement* table : tables) {
            const QSqlDatabase database = databaseOf(*table);
            if (!done.contains(database.connectionName())) {
                MUST(QSqlQuery(database).exec(QLatin1String(statement)));
                done += database.connectionName();
            }
        }
    }

    /// An update file of the map data opens a database that then stays open.
    static void closeMapData()
    {
        Variables& variables = simulator().variables;
        const auto& layouts = databaseLayouts();
        for (const QString& name : QSqlDatabase::connectionNames()) {
            if (std::none_of(layouts.begin(), layouts.end(),
                             [&](const DatabaseLayout& layout) { return variables.*layout.dbName == name; })) {
                QSqlDatabase::database(name, false).close();
                QSqlDatabase::removeDatabase(name);
            }
        }
        for (const QString& file : variables.dirOSM.entryList(QDir::Files | QDir::Hidden)) {
            variables.dirOSM.remove(file);
        }
        variables.dbOSM.clear();
    }

    const QVector<const UpdateStatement*> tables;
};

bool importFile(const QString& name, const QByteArray& bytes)
{
    QFile file(scratchFile(name, bytes));
    MUST(file.open(QIODevice::ReadOnly));
    return CIODataBase().importDB(file, &simulator().variables);
}

QSqlQuery rowsOf(const UpdateStatement& table)
{
    QSqlQuery query(databaseOf(table));
    MUST(query.exec(QStringLiteral("SELECT * FROM \"%1\"").arg(table.table)));
    return query;
}

/// The rows of the tables without blobs, as the lines that write them.
QByteArrayList exportedRows(const Fate& fate)
{
    QByteArrayList lines;
    for (const UpdateStatement* table : fate.tables) {
        if (!table->hexadecimal.empty()) {
            continue;
        }
        QSqlQuery query = rowsOf(*table);
        while (query.next()) {
            lines += composeRowLine(table->database, table->table, {rowAsText(query)}).toLatin1();
        }
    }
    return lines;
}

void checkBlobs(const Fate& fate)
{
    for (const UpdateStatement* table : fate.tables) {
        if (table->hexadecimal.empty()) {
            continue;
        }
        QSqlQuery query = rowsOf(*table);
        while (query.next()) {
            for (const HexadecimalField& blob : table->hexadecimal) {
                MUST(query.value(blob.field - updatefield::firstValue).type() == QVariant::ByteArray);
            }
        }
    }
}

void checkRoundTrip(const Fate& fate, TakenBack& world)
{
    const QByteArrayList rows = exportedRows(fate);
    if (rows.isEmpty()) {
        return;
    }
    world.startAnew();
    MUST(importFile(QStringLiteral("again.CSV"), rows.join('\n')));
    MUST(shownBoxes().size() == 1);
    MUST(exportedRows(fate) == rows);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    startApplication();
    const QByteArray bytes = inputBytes(data, size);
    const Fate fate = fateOf(bytes);
    if (fate.leavesTheFolder) {
        return -1;
    }
    TakenBack world(fate);
    answerBoxes(bytes.size() % 2 == 0);
    MUST(importFile(QStringLiteral("update.CSV"), bytes) == !fate.refused);
    MUST(!shownBoxes().isEmpty()); // the end of a file is told, whatever becomes of it
    const bool toTheEnd = shownBoxes().last().text.startsWith(QStringLiteral("Importation terminée"));
    MUST(toTheEnd == !fate.refused);
    checkBlobs(fate);
    checkRoundTrip(fate, world);
    return 0;
}
