#pragma once

#include <QFile>
#include <QObject>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

class CGlobalVar;
class QDir;
struct UpdateStatement;

/// Brings update files into the simulator's databases and writes such files. The lines' form is told in updateline.h.
///
/// Works on the connections of the databases by name; reports to the user with message boxes only. There is no
/// transaction: each line commits by itself, and lines before a failure stay written.
class CIODataBase : public QObject
{
    Q_OBJECT

public:
    explicit CIODataBase(QObject* parent = nullptr);

    /// Asks for update files and imports each. A file that cannot be opened is skipped without a word.
    void importFiles(CGlobalVar* navVar);
    /// Carries out the lines of an open file to its end. A line that fails is reported and the next one follows; false
    /// when a line stopped the file, of which a box has told: one for a database or a table that is not known, one for
    /// a database whose file is no longer in place, one that is too long.
    bool importDB(QFile& file, CGlobalVar* navVar);
    /// Carries out one line that deletes: the rows with a key, or, with an empty key and after a question, the table.
    void deleteAll(const QSqlDatabase& db, const QStringList& fields);
    /// Binds the fields from the first value to field number `last`, runs the prepared statement and reports a failure.
    void addAll(QSqlQuery& query, const QStringList& fields, int last);
    /// The binding alone, each field as text; a field that the line does not have is an empty text. Does nothing when
    /// `last` is below the first value's number.
    void bindFields(QSqlQuery& query, const QStringList& fields, int last);

    /// Writes all navaids, or all waypoints, of a connection. False when there are none, when the user keeps an
    /// existing file, or when the file cannot be opened.
    bool exportAllNAV(const QString& connection, const QString& fileName);
    bool exportAllWPT(const QString& connection, const QString& fileName);
    /// Writes a 3D object and its companion (the name with "N." for "."), each with its texture. False when there is
    /// no such object or the user keeps an existing file. A file that cannot be opened gives true, as ever.
    bool exportM3D(const QString& connection, const QString& objectName, const QString& fileName);
    /// Writes a 3D project with its placed objects and makes the folder `scene` in `folder`. False when there is no
    /// such project or the user keeps an existing file. A file that cannot be opened gives true, as ever.
    bool exportOBJ(const QString& connection, const QDir& folder, const QString& scene, const QString& fileName);

    /// Cleared when a file starts, shown when it ends. Failures are shown line by line, so that it stays empty.
    QStringList errorList;

private:
    bool importLine(const QStringList& fields, const CGlobalVar& navVar);
    bool importOsm(QFile& file, CGlobalVar& navVar);
    void writeRow(QSqlQuery& query, const UpdateStatement& statement, const QStringList& fields);
};
