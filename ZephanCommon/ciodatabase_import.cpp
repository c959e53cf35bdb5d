// Reading update files into the databases.

#include "ciodatabase.h"

#include "boxtext.h"
#include "databaselayout.h"
#include "databaseplace.h"
#include "databasewait.h"
#include "keyedstatement.h"
#include "updateline.h"
#include "updatestatements.h"

#include <QDebug>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

namespace {

/// Null when no database goes by this name in update lines.
const DatabaseLayout* findDatabase(const QString& group)
{
    const auto& layouts = databaseLayouts();
    const auto found = std::find_if(layouts.begin(), layouts.end(),
                                    [&group](const DatabaseLayout& layout) { return layout.group == group; });
    return found == layouts.end() ? nullptr : &*found;
}

/// Tells of a line that stops its file.
void showRefusal(const QString& label, const QString& text)
{
    QMessageBox::warning(nullptr, CIODataBase::tr("Erreur SQL"), text);
    qWarning() << qPrintable(label) << text;
}

void showImported(const QFile& file)
{
    QMessageBox::information(nullptr, CIODataBase::tr("Importation"),
                             CIODataBase::tr("Importation terminée\n %1").arg(file.fileName()));
}

/// Whether a name out of an update file is that of a file in this folder or below it.
bool isFileBelow(const QDir& folder, const QString& name)
{
    const QStringList steps = QDir::fromNativeSeparators(name).split(QLatin1Char('/'));
    return !steps.contains(QLatin1String("..")) && QFileInfo(folder.path() + QLatin1Char('/') + name).isFile();
}

/// The connection to the database of map data that an update file names; an invalid one, after the box, when there is
/// no such file. SQLite would make an empty database of any name, and the next start would take it for the simulator's.
QSqlDatabase mapData(const CGlobalVar& navVar)
{
    const QString& name = navVar.dbOSM;
    if (!QSqlDatabase::database(name, false).isOpen() && !isFileBelow(navVar.dirOSM, name)) {
        SqlMgr::showNotOpened(name, navVar.dirOSM.path());
        return QSqlDatabase();
    }
    navVar.sqlMgr->addDB(name, navVar.dirOSM.path());
    return QSqlDatabase::database(name, true);
}

/// Reports a statement that has run.
void report(bool done, const QSqlQuery& query)
{
    if (!done) {
        SqlMgr::showQueryError(query);
        return;
    }
    qDebug() << query.lastQuery();
}

} // namespace

CIODataBase::CIODataBase(QObject* parent) : QObject(parent) {}

void CIODataBase::importFiles(CGlobalVar* navVar)
{
    const QStringList names = QFileDialog::getOpenFileNames(nullptr, tr("Ouvrir un fichier d'import"), QString(),
                                                            tr("Fichier Zephan Export (*.CSV);;Tous (*.*)"));
    for (const QString& name : names) {
        QFile file(name);
        // A pipe would be waited for, and a device need not end.
        if (QFileInfo(name).isFile() && file.open(QIODevice::ReadOnly)) {
            importDB(file, navVar);
        }
    }
}

bool CIODataBase::importDB(QFile& file, CGlobalVar* navVar)
{
    errorList.clear();
    while (!file.atEnd()) {
        const QByteArray line = readUpdateLine(file);
        if (!isWholeLine(line)) {
            showRefusal(QStringLiteral("CIODataBase::importDB"),
                        tr("Le fichier %1 n'est pas un fichier d'import : une de ses lignes est trop longue.")
                            .arg(file.fileName()));
            return false;
        }
        const QStringList fields = splitUpdateLine(line);
        if (fields.first() == QLatin1String("OSM")) {
            return importOsm(file, *navVar);
        }
        if (!importLine(fields, *navVar)) {
            return false;
        }
    }
    if (!errorList.isEmpty()) {
        const QString text = tr("Il y a eu des erreurs à l'importation\n%1").arg(errorList.join(QLatin1Char('\n')));
        QMessageBox::warning(nullptr, tr("Erreur SQL"), text);
        qWarning() << text;
        return false;
    }
    showImported(file);
    return true;
}

bool CIODataBase::importLine(const QStringList& fields, const CGlobalVar& navVar)
{
    const QString& group = fields.first();
    const DatabaseLayout* layout = findDatabase(group);
    if (layout == nullptr) {
        showRefusal(QStringLiteral("CIODataBase::importGEN"),
                    tr("La base de données %1 est inconnue.\n%2").arg(boxText(group), boxText(joinUpdateLine(fields))));
        return false;
    }
    const UpdateStatement* statement = findUpdateStatement(group, updateField(fields, updatefield::table));
    if (statement == nullptr) {
        // Two values for three places: the sentence has always called the database a table and kept its "%3".
        showRefusal(
            QStringLiteral("CIODataBase::importDB ") + group,
            tr("La table %1 est inconnue dans la base de données %2.\n%3").arg(group, boxText(joinUpdateLine(fields))));
        return false;
    }
    if (!databaseIsInPlace(navVar.*layout->dbName)) {
        return false;
    }
    const QSqlDatabase db = QSqlDatabase::database(navVar.*layout->dbName, true);
    const QString action = updateField(fields, updatefield::action);
    if (action == QLatin1String("+")) {
        QSqlQuery query(db);
        writeRow(query, *statement, fields);
    } else if (action == QLatin1String("-")) {
        deleteAll(db, fields);
    }
    return true;
}

void CIODataBase::writeRow(QSqlQuery& query, const UpdateStatement& statement, const QStringList& fields)
{
    query.prepare(QString(statement.text)); // where this fails, so does the execution
    if (statement.hexadecimal.empty()) {
        addAll(query, fields, statement.lastField);
        return;
    }
    bindFields(query, fields, statement.lastTextField);
    for (const HexadecimalField& blob : statement.hexadecimal) {
        query.bindValue(blob.field - updatefield::firstValue,
                        decodeHexadecimal(updateField(fields, blob.field), blob.latin1));
    }
    report(query.exec(), query);
}

void CIODataBase::addAll(QSqlQuery& query, const QStringList& fields, int last)
{
    bindFields(query, fields, last);
    report(query.exec(), query);
}

void CIODataBase::bindFields(QSqlQuery& query, const QStringList& fields, int last)
{
    for (int field = updatefield::firstValue; field <= last; ++field) {
        query.addBindValue(updateField(fields, field));
    }
}

void CIODataBase::deleteAll(const QSqlDatabase& db, const QStringList& fields)
{
    const QString table = updateField(fields, updatefield::table).trimmed();
    const QString column = updateField(fields, updatefield::keyColumn).trimmed();
    const QString key = updateField(fields, updatefield::key).trimmed();
    QSqlQuery query(db);
    if (!key.isEmpty()) {
        const QString statement = QStringLiteral("DELETE FROM %1 WHERE %2=\"%3\"").arg(table, column, key);
        report(runDeletion(query, statement, {table, column, key}), query);
        return;
    }
    const QString question =
        tr("Vous allez effacer la totalité des données de la table %1.\nVoulez vous continuer ?").arg(table);
    if (QMessageBox::warning(nullptr, tr("Attention"), question, QMessageBox::Ok | QMessageBox::Cancel) !=
        QMessageBox::Ok) {
        // Only this line is cancelled, whatever the text says: the next one follows.
        QMessageBox::information(nullptr, tr("Import"), tr("L'import a été annulé."));
        return;
    }
    // The stray parenthesis protects the table: SQLite refuses the statement, and no file can empty a table.
    report(query.exec(QStringLiteral("DELETE FROM %1 )").arg(table)), query);
}

bool CIODataBase::importOsm(QFile& file, CGlobalVar& navVar)
{
    navVar.dbOSM = QString::fromUtf8(readUpdateLine(file).trimmed());
    qDebug() << navVar.dbOSM << QFileInfo(file).absoluteFilePath();
    const QSqlDatabase database = mapData(navVar);
    if (!databaseIsInPlace(navVar.dbOSM)) {
        return false;
    }
    QSqlQuery query(database);
    OneWait patience(database);
    while (!file.atEnd()) {
        const QByteArray line = readUpdateLine(file);
        if (line.isEmpty()) {
            break; // the file cannot be read to its end
        }
        const QString ident = QString::fromUtf8(line.trimmed());
        const QString statement = QStringLiteral("DELETE FROM OSM_OBJ WHERE Ident = '%1';").arg(ident);
        const bool sound = staysQuoted(ident, QLatin1Char('\''));
        if (!(sound ? patience.exec(query, statement) : runKeyed(query, statement, false))) {
            qWarning() << "CIODataBase::importDB Error" << query.lastQuery();
        }
        qDebug() << statement;
    }
    showImported(file);
    return true;
}
