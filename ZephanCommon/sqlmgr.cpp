// Connections to the simulator's databases and the check of their version.

#include "sqlmgr.h"

#include "boxtext.h"
#include "databaseplace.h"
#include "databasewait.h"

#include <QDebug>
#include <QMessageBox>
#include <QVariant>

namespace {

/// The schema version of the file behind a connection, or an invalid value when there is no row to read. The query
/// is gone on return, so that the connection can be removed.
QVariant userVersion(const QString& connection)
{
    QSqlQuery query(QSqlDatabase::database(connection, true));
    query.exec(QStringLiteral("PRAGMA user_version;"));
    return query.next() ? QVariant(query.value(0).toInt()) : QVariant();
}

} // namespace

SqlMgr::SqlMgr() = default;

SqlMgr::~SqlMgr()
{
    // Named connections end with the process.
    QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).close();
}

void SqlMgr::addDB(const QString& name, const QString& path)
{
    lastConnection = QSqlDatabase::database(name, true);
    if (lastConnection.isValid()) {
        return;
    }
    lastConnection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    const QString file = QStringLiteral("%1/%2").arg(path, name);
    lastConnection.setDatabaseName(file);
    lastConnection.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(databaseWait));
    if (!lastConnection.open()) {
        showNotOpened(name, path);
        return;
    }
    noteDatabaseFile(name, file);
    // Update files write thousands of lines, each committed by itself: speed is traded for safety against a crash.
    QSqlQuery query(lastConnection);
    query.exec(QStringLiteral("PRAGMA synchronous = OFF"));
    query.exec(QStringLiteral("PRAGMA journal_mode = MEMORY"));
    qDebug() << "is open" << name << path;
}

void SqlMgr::showNotOpened(const QString& name, const QString& path)
{
    QMessageBox::critical(nullptr, tr("Ouverture de la base de données impossible."),
                          tr("Impossible d\"établir la connexion avec %1.").arg(boxText(name)), QMessageBox::Ok,
                          QMessageBox::NoButton);
    qDebug() << "Database not found" << name << path;
}

bool SqlMgr::checkDBVersion(const QDir& dir, const QString& name, int version)
{
    addDB(name, dir.path());
    const QVariant found = userVersion(name);
    if (!found.isValid()) {
        return false;
    }
    if (found.toInt() == version) {
        return true;
    }
    lastConnection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
    // The message was written for the model database and serves all of them.
    QMessageBox::critical(
        nullptr, tr("Erreur de version de base de données"),
        tr("M3D : La version attendue est %1.\nLa version trouvée est %2.\nLe programme va s'arréter.")
            .arg(version)
            .arg(found.toInt()),
        QMessageBox::Ok, QMessageBox::NoButton);
    qFatal("CGlobalVar::initDB M3D : erreur de version");
}
