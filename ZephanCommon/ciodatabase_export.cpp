// Writing update files out of the databases.

#include "ciodatabase.h"

#include "platformpath.h"
#include "updateline.h"
#include "updaterows.h"
#include "wholefile.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QSqlRecord>
#include <QTextStream>
#include <QVariant>

namespace {

/// One table in an update file: a line that deletes, then a line for each row.
struct TableLines
{
    const char* deletedFrom; ///< the database as the deleting line names it
    const char* database;    ///< the database as the rows' lines name it
    const char* table;
    const char* keyColumn;
    QString (*typedRow)(const QSqlQuery& query); ///< null for rows of all columns, each as its text
};

constexpr TableLines navaidLines = {"GEN", "GEN", "NAV", "ukey", nullptr};
// The deleting line has always named GEN, and an import refuses it; the rows go to WPT.
constexpr TableLines waypointLines = {"GEN", "WPT", "WPT", "ukey", nullptr};
constexpr TableLines modelLines = {"M3D", "M3D", "MOD", "name", rowMOD};
constexpr TableLines textureLines = {"M3D", "M3D", "TEXTURE", "xname", rowTEXTURE};
constexpr TableLines projectLines = {"OBJ", "OBJ", "FNM", "scene", nullptr};
constexpr TableLines objectLines = {"OBJ", "OBJ", "OBJ", "scn", nullptr};

/// What differs between the exports of whole tables.
struct WholeTable
{
    const TableLines& lines;
    const char* select;
    const char* count;
    const char* done;    ///< source text, for translation
    const char* notOpen; ///< source text, for translation
    const char* label;   ///< of the log
};

const WholeTable allNavaids = {
    navaidLines,
    "SELECT * FROM NAV;",
    "SELECT COUNT(uKey) FROM NAV",
    QT_TRANSLATE_NOOP("CIODataBase", "%2 NAVAID ont été exportés dans %1"),
    QT_TRANSLATE_NOOP("CIODataBase", "exportNAV: Impossible d'ouvrir le fichier %1"),
    "CIODataBase::exportNAV",
};

const WholeTable allWaypoints = {
    waypointLines,
    "SELECT * FROM WPT;",
    "SELECT COUNT(uKey) FROM WPT",
    QT_TRANSLATE_NOOP("CIODataBase", "%2 WAYPOINT ont été exportés dans %1"),
    QT_TRANSLATE_NOOP("CIODataBase", "exportWPT: Impossible d'ouvrir le fichier %1"),
    "CIODataBase::exportWPT",
};

/// Writes the line that deletes the key, and the rows from the one on which the query stands.
void writeTable(QTextStream& stream, const TableLines& lines, const QString& key, QSqlQuery& query)
{
    const QString table = QLatin1String(lines.table);
    stream << composeDeleteLine(QLatin1String(lines.deletedFrom), table, QLatin1String(lines.keyColumn), key) << ";\n";
    const QString rowStart = composeRowLine(QLatin1String(lines.database), table, {QString()});
    const int columns = query.record().count(); // once: a record is a copy of its whole row
    do {
        const QString row = lines.typedRow != nullptr ? lines.typedRow(query) : rowAsText(query, columns);
        stream << rowStart << row << '\n';
    } while (query.next());
}

/// Runs a statement. True when a row was found; the query then stands on the first one.
bool findRows(QSqlQuery& query, const QString& statement)
{
    return query.exec(statement) && query.first();
}

bool findModel(QSqlQuery& query, const QString& name)
{
    return findRows(query, QStringLiteral("SELECT * FROM MOD WHERE name = '%1'").arg(name));
}

/// Writes the rows of a 3D object, from the one on which the query stands, and those of its texture.
void writeModel(QTextStream& stream, const QString& name, QSqlQuery& query)
{
    constexpr int textureColumn = 3;
    const QString texture = query.value(textureColumn).toString();
    writeTable(stream, modelLines, name, query);
    if (findRows(query, QStringLiteral("SELECT * FROM TEXTURE WHERE xname = '%1'").arg(texture))) {
        writeTable(stream, textureLines, texture, query);
    }
}

/// Writes the objects of each project on which the query comes to stand.
void writePlacedObjects(QTextStream& stream, QSqlQuery& projects, const QSqlDatabase& database)
{
    constexpr int numberColumn = 3;
    QSqlQuery objects(database);
    do {
        const QString number = QString::number(projects.value(numberColumn).toInt());
        if (findRows(objects, QStringLiteral("SELECT * FROM OBJ WHERE scn = \"%1\"").arg(number))) {
            writeTable(stream, objectLines, number, objects);
        }
    } while (projects.next());
}

/// Asks before an existing file is written over. True as well when there is no such file.
bool mayWrite(const QFile& file, const QString& fileName)
{
    return !file.exists() ||
           QMessageBox::question(nullptr, CIODataBase::tr("Attention"),
                                 CIODataBase::tr("Le fichier %1 existe déja.\nVoulez vous l'écraser ?").arg(fileName),
                                 QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

/// The same, and removes a file that is protected; any other is replaced by the new one when that is complete.
bool makeRoom(QFile& file, const QString& fileName)
{
    if (!mayWrite(file, fileName)) {
        return false;
    }
    if (file.exists() && !QFileInfo(file).isWritable()) {
        file.remove();
    }
    return true;
}

/// A file that cannot be opened is passed over in silence: the box of success follows all the same. A full disk has
/// been told.
bool written(const QString& fileName, const QByteArray& lines)
{
    return writeWholeFile(fileName, lines) != WriteEnd::NotWhole;
}

bool exportWholeTable(const WholeTable& table, const QString& connection, const QString& fileName)
{
    QSqlQuery query(QSqlDatabase::database(connection, true));
    query.setForwardOnly(true); // the rows of a whole table are not to be kept
    if (!findRows(query, QLatin1String(table.select))) {
        return false;
    }
    if (!mayWrite(QFile(platformPath(fileName)), fileName)) {
        return false;
    }
    QByteArray lines;
    QTextStream stream(&lines);
    writeTable(stream, table.lines, QString(), query);
    stream.flush();
    const WriteEnd end = writeWholeFile(fileName, lines);
    if (end == WriteEnd::NotOpened) {
        const QString text = CIODataBase::tr(table.notOpen).arg(fileName);
        QMessageBox::warning(nullptr, CIODataBase::tr("Erreur CSV"), text);
        qWarning() << table.label << text;
    }
    if (end != WriteEnd::Whole) {
        return false;
    }
    const int count = findRows(query, QLatin1String(table.count)) ? query.value(0).toInt() : 0;
    QMessageBox::information(nullptr, CIODataBase::tr("Exportation"),
                             CIODataBase::tr(table.done).arg(fileName, QString::number(count)));
    return true;
}

} // namespace

bool CIODataBase::exportAllNAV(const QString& connection, const QString& fileName)
{
    return exportWholeTable(allNavaids, connection, fileName);
}

bool CIODataBase::exportAllWPT(const QString& connection, const QString& fileName)
{
    return exportWholeTable(allWaypoints, connection, fileName);
}

bool CIODataBase::exportM3D(const QString& connection, const QString& objectName, const QString& fileName)
{
    QSqlQuery query(QSqlDatabase::database(connection, true));
    if (!findModel(query, objectName)) {
        QMessageBox::warning(
            nullptr, tr("Erreur SQL"),
            tr("Impossible de trouver l'objet %1 dans la base de donnée %2").arg(objectName, connection));
        // The label is the one that the suite's own object browser has always written.
        qWarning() << "MainWindow::on_btn3DObjectExport_clicked Object" << objectName << connection << "not found";
        return false;
    }
    QFile file(platformPath(fileName));
    if (!makeRoom(file, fileName)) {
        return false;
    }
    QByteArray lines;
    QTextStream stream(&lines);
    writeModel(stream, objectName, query);
    // A name without a "." is its own companion: its rows then stand twice in the file.
    const QString companion = QString(objectName).replace(QLatin1Char('.'), QLatin1String("N."));
    if (findModel(query, companion)) {
        writeModel(stream, companion, query);
    }
    stream.flush();
    if (!written(fileName, lines)) {
        return false;
    }
    QMessageBox::information(nullptr, QString(),
                             tr("L'objet 3D %1 a été enregistré dans %2").arg(objectName, fileName));
    return true;
}

bool CIODataBase::exportOBJ(const QString& connection, const QDir& folder, const QString& scene,
                            const QString& fileName)
{
    const QSqlDatabase database = QSqlDatabase::database(connection, true);
    QSqlQuery projects(database);
    if (!findRows(projects, QStringLiteral("SELECT * FROM FNM WHERE scene = '%1'").arg(scene))) {
        QMessageBox::warning(nullptr, tr("Erreur SQL"),
                             tr("Impossible de trouver le projet %1 dans la base de donnée %2").arg(scene, connection));
        qWarning() << "CIODataBase::exportOBJ Project" << scene << connection << "not found";
        return false;
    }
    // The project's folder is made for its other files; nothing is written into it here.
    if (!QDir(platformPath(QStringLiteral("%1/%2/").arg(folder.path(), scene))).exists()) {
        folder.mkdir(platformPath(scene));
    }
    QFile file(platformPath(fileName));
    if (!makeRoom(file, fileName)) {
        return false;
    }
    QByteArray lines;
    QTextStream stream(&lines);
    writeTable(stream, projectLines, scene, projects);
    projects.first();
    writePlacedObjects(stream, projects, database);
    stream.flush();
    if (!written(fileName, lines)) {
        return false;
    }
    QMessageBox::information(nullptr, QString(), tr("Le projet 3D %1 a été enregistré dans %2").arg(scene, fileName));
    return true;
}
