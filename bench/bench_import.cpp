// Importing an update file of 50,000 navaids, against the shell of SQLite fed the same REPLACE statements one by one
// with the same two pragmas. Neither side opens a transaction: each row is prepared and committed by itself.
#include "ciodatabase.h"
#include "databaselayout.h"
#include "databasewriter.h"
#include "measure.h"
#include "updateline.h"

#include <QApplication>
#include <QDialog>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int rowCount = 50000;

class BenchVariables : public CGlobalVar
{
public:
    void saveSettings() override {}
    void loadSettings() override {}
};

const DatabaseLayout& navigationLayout()
{
    for (const DatabaseLayout& layout : databaseLayouts()) {
        if (layout.group == "GEN") {
            return layout;
        }
    }
    qFatal("no database is called GEN");
}

QStringList navaid(int number)
{
    const QString place = QString::number(number);
    return {QString::number(65536 * (number % 180) + number % 90),
            "K" + place,
            "I" + place,
            "STATION NUMBER " + place,
            QString::number(108.0 + 0.05 * (number % 200), 'f', 2),
            "-1.5",
            "0",
            "FR",
            "",
            QString::number(number % 9),
            "2",
            "1",
            QString::number(100000.25 + number, 'f', 2),
            QString::number(5000.75 + number, 'f', 2),
            QString::number(number % 3000),
            "100",
            "130"};
}

void writeFile(const QString& path, const std::function<QString(int)>& lineOf, const char* head = "", int times = 1)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    file.write(head);
    for (int time = 0; time < times; ++time) {
        for (int number = 0; number < rowCount; ++number) {
            file.write(lineOf(number).toLatin1() + '\n');
        }
    }
}

QString updateLine(int number)
{
    return composeRowLine("GEN", "NAV", navaid(number));
}

QString sqlStatement(int number)
{
    static const QString start = QString(findUpdateStatement("GEN", "NAV")->text).section("VALUES", 0, 0);
    return start + "VALUES ('" + navaid(number).join("','") + "');";
}

void importFile(const QString& path, CGlobalVar& variables)
{
    // The box at the end is answered as soon as it is there.
    QTimer::singleShot(0, [] {
        if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            box->accept();
        }
    });
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !CIODataBase().importDB(file, &variables)) {
        qFatal("the import has stopped");
    }
}

void runShell(const QString& shell, const QString& database, const QString& statements)
{
    QProcess process;
    process.setStandardInputFile(statements);
    process.start(shell, {database});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("sqlite3: %s", process.readAllStandardError().constData());
    }
}

/// What a database holds, in short: both sides must have written the same.
QVariantList summary(const QString& connection)
{
    QSqlQuery query("SELECT count(*), sum(tile), sum(nfrq), sum(nlat), sum(length(name)), max(ukey) FROM NAV",
                    QSqlDatabase::database(connection));
    query.next();
    QVariantList values;
    for (int column = 0; column < 6; ++column) {
        values << query.value(column);
    }
    return values;
}

/// The most memory that this process has held so far, in MB; 0 where the system does not tell.
double peakMemory()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
        }
    }
    return 0.0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    takeMeasureOptions(QApplication::arguments());
    const QString shell = QStandardPaths::findExecutable("sqlite3");
    if (shell.isEmpty()) {
        std::fputs("bench_import: wants the program sqlite3\n", stderr);
        return 1;
    }
    const QTemporaryDir folder;
    for (const char* name : {"GEN.db", "SHELL.db"}) {
        DatabaseWriter(folder.filePath(name), navigationLayout()).finish();
    }
    BenchVariables variables;
    variables.dbGEN = "GEN.db";
    variables.sqlMgr->addDB("GEN.db", folder.path());

    const QString update = folder.filePath("update.CSV");
    const QString statements = folder.filePath("statements.sql");
    writeFile(update, updateLine);
    writeFile(statements, sqlStatement, "PRAGMA synchronous = OFF;\nPRAGMA journal_mode = MEMORY;\n");
    const Comparison comparison = compareMs(
        roundsOf(5), [&] { runShell(shell, folder.filePath("SHELL.db"), statements); },
        [&] { importFile(update, variables); });
    variables.sqlMgr->addDB("SHELL.db", folder.path());
    if (summary("GEN.db") != summary("SHELL.db") || summary("GEN.db").first() != rowCount) {
        qFatal("the two databases differ");
    }

    const double peak = peakMemory();
    const QString longUpdate = folder.filePath("long.CSV");
    writeFile(longUpdate, updateLine, "", 4);
    importFile(longUpdate, variables);

    const QString subject = "import";
    const QString rows = QString("%1 navaids, ").arg(rowCount);
    printFigure({subject, rows + "shell of SQLite", comparison.firstMs, "ms"});
    printFigure({subject, rows + "update file", comparison.secondMs, "ms"});
    printFigure({subject, rows + "update file to the shell of SQLite", comparison.ratio, "", 2.0});
    printFigure({subject, "a file of four times the lines, more memory", peakMemory() - peak, "MB"});
}
