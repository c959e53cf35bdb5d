// An update file, imported into real databases: it stops where it must and nowhere else, a line that deletes takes the
// rows with its key and no others, every row that the file wrote is exported and imported again without a difference,
// and no file appears beside the map data's.

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
#include <QRegularExpression>
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
        sandbox.sql(mapDataFile, QStringLiteral("CREATE TABLE OSM_OBJ (Ident TEXT, kind INTEGER)"));
        sandbox.insertRow(mapDataFile, QStringLiteral("OSM_OBJ"), {{QStringLiteral("Ident"), QStringLiteral("way 1")}});
        mapData = sandbox.readFile(QStringLiteral("SQL/") + mapDataFile);
        sandbox.removeFile(QStringLiteral("SQL/") + mapDataFile);
        putMapData();
        QDir::setCurrent(startFolder); // the fuzzer finds its inputs from there
    }

    void putMapData() const
    {
        sandbox.writeFile(QStringLiteral("OSM/") + mapDataFile, mapData);
    }

    const QString startFolder = QDir::currentPath();
    const QString mapDataFile = QStringLiteral("OSM.db");
    QByteArray mapData;
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

QByteArrayList fieldsOf(const QByteArray& line)
{
    return QByteArray(line.trimmed().constData()).split(';');
}

/// What becomes of a file, told from its lines alone.
struct Fate
{
    bool refused = false;
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
    for (const QByteArray& line : lines) {
        const QByteArrayList fields = fieldsOf(line);
        if (fields.first() == "OSM") {
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
        MUST(variables.dirOSM.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot) ==
             QStringList(simulator().mapDataFile));
        simulator().putMapData();
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

/// A line that deletes by a key.
struct Deletion
{
    const UpdateStatement* table;
    QString column;
    QString key;
};

/// How many rows of the table stay whatever the line: those that do not have the key in the column, all of them where
/// it has no such column.
int rowsToKeep(const Deletion& deletion)
{
    const QString table = deletion.table->table;
    QSqlQuery query(databaseOf(*deletion.table));
    const QString behindTable = table + QLatin1Char('.') + deletion.column.section(QLatin1Char('.'), -1);
    static const QRegularExpression name(QStringLiteral(R"(^["`\[]?[\w.]+["`\]]?$)")); // and no expression
    if (name.match(deletion.column).hasMatch() &&
        query.prepare(QStringLiteral("SELECT count(*) FROM %1 WHERE %2 IS NOT ?").arg(table, behindTable))) {
        query.addBindValue(deletion.key);
        MUST(query.exec());
    } else {
        MUST(query.exec(QStringLiteral("SELECT count(*) FROM ") + table));
    }
    MUST(query.next());
    return query.value(0).toInt();
}

/// Takes a file up to each line that deletes: rows without its key stand as they did.
void checkDeletions(const QByteArray& bytes, const Fate& fate, TakenBack& world)
{
    if (fate.tables.isEmpty() || !bytes.contains(";-;")) {
        return;
    }
    world.startAnew();
    QByteArray linesAhead;
    for (const QByteArray& line : linesOf(bytes)) {
        const QByteArrayList fields = fieldsOf(line);
        const UpdateStatement* table = tableOf(fields);
        if (table == nullptr) {
            return;
        }
        const auto text = [&fields](int number) { return QString::fromLatin1(fields.value(number)).trimmed(); };
        const Deletion deletion{table, text(3), text(4).replace(QLatin1String("\"\""), QLatin1String("\""))};
        if (fields.value(2) != "-" || deletion.key.isEmpty()) {
            linesAhead += line + '\n';
            continue;
        }
        importFile(QStringLiteral("ahead.CSV"), linesAhead);
        linesAhead.clear();
        const int kept = rowsToKeep(deletion);
        importFile(QStringLiteral("deletion.CSV"), line);
        MUST(rowsToKeep(deletion) == kept);
    }
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
    TakenBack world(fate);
    answerBoxes(bytes.size() % 2 == 0);
    MUST(importFile(QStringLiteral("update.CSV"), bytes) == !fate.refused);
    MUST(!shownBoxes().isEmpty()); // the end of a file is told, whatever becomes of it
    const bool toTheEnd = shownBoxes().last().text.startsWith(QStringLiteral("Importation terminée"));
    MUST(toTheEnd == !fate.refused);
    checkBlobs(fate);
    checkRoundTrip(fate, world);
    checkDeletions(bytes, fate, world);
    return 0;
}
