// "fuzz_seeds FOLDER" writes the seeds of the fuzzers, a folder for each, out of a fresh demonstration simulator.

#include "aeozephannavrecord.h"
#include "cpodmgr.h"
#include "demoroot.h"
#include "plantext.h"
#include "podwriter.h"
#include "updatestatements.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

void check(bool ok, const QString& what)
{
    if (!ok) {
        std::fprintf(stderr, "fuzz_seeds: %s\n", qPrintable(what));
        std::exit(1);
    }
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    check(file.open(QIODevice::ReadOnly), path);
    return file.readAll();
}

/// The folder of one fuzzer's seeds.
class Seeds
{
public:
    Seeds(const QString& corpus, const char* subject) : folder(QDir(corpus).filePath(QLatin1String(subject)))
    {
        check(folder.mkpath(QStringLiteral(".")), folder.path());
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        check(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), file.fileName());
    }

private:
    QDir folder;
};

/// The two texts of an archive; its pictures would only make the seed large.
struct AircraftTexts
{
    QByteArray nfo;
    QByteArray svh;
};

AircraftTexts textsOf(const QString& archive)
{
    CPodMgr pod(archive);
    AircraftTexts texts;
    if (pod.findBySuffix(QStringLiteral("NFO"))) {
        texts.nfo = pod.content.toUtf8();
    }
    if (pod.findBySuffix(QStringLiteral("SVH"))) {
        texts.svh = pod.content.toUtf8();
    }
    return texts;
}

void writeAircraft(const QDir& root, const QString& corpus)
{
    const Seeds archives(corpus, "archive");
    const Seeds texts(corpus, "aircraft");
    QDirIterator walk(root.filePath(QStringLiteral("Aircraft")), {QStringLiteral("*.pod")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString name = QFileInfo(path).baseName().toLower();
        const AircraftTexts aircraft = textsOf(path);
        QVector<PodContent> entries{{"DATA\\PLANE.NFO", aircraft.nfo}};
        QByteArray text = aircraft.nfo;
        if (!aircraft.svh.isEmpty()) {
            entries.append({"DATA\\PLANE.SVH", aircraft.svh});
            text += '\0' + aircraft.svh;
        }
        archives.write(name, podBytes(entries));
        texts.write(name, text);
    }
    archives.write(QStringLiteral("no_entries"), podBytes({}));
    archives.write(QStringLiteral("two_vehicles"),
                   podBytes({{"A.SVH", "<acid>\nF-A\n<CEIL>\n9\n"}, {"B.SVH", "<acid>\r\nF-B\r\n"}, {"NFO", ""}}));
    texts.write(QStringLiteral("carriage_returns"),
                QByteArray("<make> x\r\n\tA \r\n") + '\0' + "<acid>\r\n\tF-A\r\n<CEIL>");
}

/// The first rows of a table as lines of a plan.
QList<CFpLinePtr> firstRows(const QString& database, const QString& statement, void (CFpLine::*fill)(const QSqlQuery&))
{
    QList<CFpLinePtr> lines;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), database);
        connection.setDatabaseName(database);
        check(connection.open(), database);
        QSqlQuery row(connection);
        check(row.exec(statement), statement);
        while (row.next()) {
            lines += CFpLinePtr(new CFpLine);
            (lines.last().data()->*fill)(row);
        }
    }
    QSqlDatabase::removeDatabase(database);
    return lines;
}

CFpLinePtr clickedPoint(double latS, double lonS)
{
    CFpLinePtr line(new CFpLine);
    line->name = QStringLiteral("WPT001");
    line->iden = line->name;
    line->usage = QStringLiteral("uswp");
    line->dbKey = QStringLiteral("NONE");
    line->latS = latS;
    line->lonS = lonS;
    return line;
}

QByteArray planBytes(const QList<CFpLinePtr>& lines)
{
    return planText(lines, 1, 12500).join(QString()).toUtf8();
}

void writePlans(const QDir& root, const QString& corpus)
{
    const Seeds seeds(corpus, "plan");
    const QString gen = root.filePath(QStringLiteral("SQL/GEN.db"));
    const QString wpt = root.filePath(QStringLiteral("SQL/WPT.db"));
    const auto airports = firstRows(gen, QStringLiteral("SELECT * FROM APT LIMIT 2"), &CFpLine::fromApt);
    const auto navaids = firstRows(gen, QStringLiteral("SELECT * FROM NAV LIMIT 1"), &CFpLine::fromNav);
    const auto waypoints = firstRows(wpt, QStringLiteral("SELECT * FROM WPT LIMIT 1"), &CFpLine::fromWpt);
    seeds.write(QStringLiteral("two_airports"), planBytes(airports));
    seeds.write(QStringLiteral("every_kind"), planBytes(airports.mid(0, 1) + navaids + waypoints));
    seeds.write(QStringLiteral("across_the_date_line"),
                planBytes({clickedPoint(-72000.0, 647999.0), clickedPoint(72000.0, -647999.0)}));
    seeds.write(QStringLiteral("head_only"), "<bgno>\n<vers>\n1\n<endo>\n");
}

void writeUpdates(const QDir& updates, const QString& corpus)
{
    const Seeds seeds(corpus, "update");
    QByteArray first;
    for (const QString& name : updates.entryList()) {
        QStringList tables;
        for (const QByteArray& line : readFile(updates.filePath(name)).split('\n')) {
            const QString table = QString::fromLatin1(line).section(QLatin1Char(';'), 0, 1);
            if (!line.isEmpty() && !tables.contains(table)) {
                tables += table;
                first = first.isEmpty() ? line : first;
                seeds.write(QString(table).replace(QLatin1Char(';'), QLatin1Char('_')), line + '\n');
            }
        }
    }
    seeds.write(QStringLiteral("row_and_deletions"),
                first + "\nGEN;APT;-;ukey;X\nGEN;NAV;-;ukey;;\nWPT;WPT;-;name;\"\nGEN;NAV;?\n");
    seeds.write(QStringLiteral("row_and_open_deletion"), "GEN;NAV;+;1;A\nGEN;NAV;-;ukey;");
    seeds.write(QStringLiteral("map_data"), first + "\nOSM;;\nOSM.db\nway 1\nway 2\n");
    seeds.write(QStringLiteral("unknown_database"), "ROUTE;SIDSTAR;-;skey;1\n");
    seeds.write(QStringLiteral("unknown_table"), "GEN;WPT;-;ukey;;\n");
    seeds.write(QStringLiteral("one_value_too_many"), "RTE;SIDSTAR;+;1;2;3;4;5;6;7;8;9;10;11;\n");
}

QByteArray recordBytes(double latS, double lonS, double heading)
{
    AeoZephanNavRecord record = {};
    record.latS = latS;
    record.lonS = lonS;
    record.heading = heading;
    return {reinterpret_cast<const char*>(&record), static_cast<int>(sizeof record)};
}

void writeRecords(const QString& corpus)
{
    const Seeds seeds(corpus, "record");
    constexpr double infinity = std::numeric_limits<double>::infinity();
    seeds.write(QStringLiteral("zeros"), recordBytes(0.0, 0.0, 0.0));
    seeds.write(QStringLiteral("two_ticks"),
                recordBytes(175411.0, 8494.0, 243.5) + recordBytes(-175411.0, 1290000.0, 359.9));
    seeds.write(QStringLiteral("no_numbers"),
                recordBytes(infinity, -infinity, std::numeric_limits<double>::quiet_NaN()));
    seeds.write(QStringLiteral("out_of_range"), recordBytes(1e300, -1e300, 1e-300));
}

void writeTitles(const QString& corpus)
{
    const Seeds seeds(corpus, "title");
    seeds.write(QStringLiteral("plan"), "aLFPO\nnRBT-RBT\nwBAMES-BAMES\np48.5 2.5\nuWPT\n^\n_\n-\n");
    seeds.write(QStringLiteral("edit"), "WBAMES-BAMES\nNRBT-RBT\np-33 151\nW\nN\nx\nW\n");
    seeds.write(QStringLiteral("delete"), "dRBT-RBT\nx\ndRBT-RBT\nDBAMES-BAMES\nDPOINT-1-X1\nPLFPO\n");
    seeds.write(QStringLiteral("look"),
                "rLFPO\ntBAMES-BAMES\tRBT-RBT\nx\ntBAMES-BAMES\t\nhBAMES1A\nvtext\np1e300 nan\nc\n");
    seeds.write(QStringLiteral("quotes"), "n\"-\"\nw%1-%2\nuLE \"BN\"\nnx-ukey\naukey\n");
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    check(argc == 2, QStringLiteral("one folder is wanted"));
    const QString corpus = QString::fromLocal8Bit(argv[1]);
    const QTemporaryDir folder;
    const QDir root(folder.filePath(QStringLiteral("simulator")));
    const QString error = makeDemoRoot(root.path());
    check(error.isEmpty(), error);
    writeAircraft(root, corpus);
    writePlans(root, corpus);
    writeUpdates(QDir(QStringLiteral(":/demo/updates")), corpus);
    Seeds(corpus, "ini")
        .write(QStringLiteral("demonstration"), readFile(root.filePath(QStringLiteral("system/AeoZephan.ini"))));
    Seeds(corpus, "ini")
        .write(QStringLiteral("mark_and_drive"),
               "\xEF\xBB\xBFstartupSituation=x\r\n[SQL]\r\nGENDB=D:\\\\Data\r\nOBJDB=\"a;b\"\r\n");
    writeRecords(corpus);
    writeTitles(corpus);
    return 0;
}
