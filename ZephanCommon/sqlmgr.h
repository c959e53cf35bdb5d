#pragma once

#include <QDir>
#include <QObject>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

/// Opens the simulator's databases and carries the catalogue of lookups and deletions.
///
/// The name of a connection is the file name alone, never the path. The catalogue never chooses a database: the
/// caller hands in a query on the right connection and reads the rows from it afterwards.
class SqlMgr : public QObject
{
    Q_OBJECT

public:
    SqlMgr();
    ~SqlMgr() override;

    /// Makes sure that a connection `name` exists on the file `name` in folder `path`. A failure shows a box; the
    /// failed connection stays registered.
    void addDB(const QString& name, const QString& path);
    /// The box and the log line for a file that is no database to open.
    static void showNotOpened(const QString& name, const QString& path);
    /// True when the file opens and has the schema version. Another version ends the process after a box.
    bool checkDBVersion(const QDir& dir, const QString& name, int version);

    /// Runs "SELECT * from TABLE;" and gives the result of exec.
    bool selectAll(QSqlQuery& query, const QString& table);

    /// Lookups: true when a row was found; the query then stands on the first row. `exact` takes "=", else LIKE.
    bool getAPT(const QString& key, bool exact, QSqlQuery& query);
    bool getNAV(const QString& key, bool exact, QSqlQuery& query);
    bool getWPT(const QString& key, bool exact, QSqlQuery& query);
    bool getILS(const QString& key, bool exact, QSqlQuery& query);
    bool getCOM(const QString& key, bool exact, QSqlQuery& query);
    bool getRWY(const QString& key, bool exact, QSqlQuery& query);
    bool getArcs(const QString& key, bool exact, QSqlQuery& query);
    bool getNode(const QString& key, bool exact, QSqlQuery& query);
    bool getPave(const QString& key, bool exact, QSqlQuery& query);
    bool getLight(const QString& key, bool exact, QSqlQuery& query);
    bool getMOD(const QString& key, bool exact, QSqlQuery& query);
    bool getTEXTURE(const QString& key, bool exact, QSqlQuery& query);
    bool getOBJmday(const QString& key, bool exact, QSqlQuery& query);
    bool getOBJscn(int key, bool exact, QSqlQuery& query);
    bool getFNM(const QString& key, bool exact, QSqlQuery& query);
    bool getATSROUTE(const QString& key, bool exact, QSqlQuery& query);
    bool getSIDSTAR(const QString& key, bool exact, QSqlQuery& query);
    bool getBDRY(const QString& key, bool exact, QSqlQuery& query);

    /// Deletions: a failure shows the error box and the row stays; the caller is not told.
    void delAPT(const QString& key, QSqlQuery& query);
    void delNAV(const QString& key, QSqlQuery& query);
    void delWPT(const QString& key, QSqlQuery& query);
    void delILS(const QString& key, QSqlQuery& query);
    void delCOM(const QString& key, QSqlQuery& query);
    void delRWY(const QString& key, QSqlQuery& query);
    void delPave(const QString& key, QSqlQuery& query);
    void delLight(const QString& key, QSqlQuery& query);
    void delMOD(const QString& key, QSqlQuery& query);
    void delTEXTURE(const QString& key, QSqlQuery& query);
    void delOBJmday(const QString& key, QSqlQuery& query);
    void delOBJscn(const QString& key, QSqlQuery& query);
    void delFNM(const QString& key, QSqlQuery& query);
    void delATSROUTE(const QString& key, QSqlQuery& query);
    void delSIDSTARname(const QString& key, QSqlQuery& query);
    void delSIDSTARapt(const QString& key, QSqlQuery& query);
    void delBDRY(const QString& key, QSqlQuery& query);

    /// The information box that reports a failed statement.
    static void showQueryError(const QSqlQuery& query);

private:
    QSqlDatabase lastConnection; ///< the connection that addDB touched last; a working variable
};
