#pragma once

#include "boxresponder.h"
#include "cglobalvar.h"
#include "ciodatabase.h"
#include "messagelog.h"
#include "sandbox.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

/// Six empty databases that are open as in the program, boxes that get their answers, and the log.
///
/// One for each test function: a box that nobody expected, or an answer that nobody used, fails the test at its end.
class UpdateWorld
{
public:
    UpdateWorld();

    /// Writes an update file below the root; returns its absolute path.
    QString write(const QByteArray& lines, const QString& name = "update.CSV") const;
    /// Imports a file; returns what importDB returns.
    bool import(const QString& path);
    /// Writes and imports lines whose import ends with the box that tells so.
    bool importToTheEnd(const QByteArray& lines);
    /// Expects the box at the end of an import.
    void expectImported(const QString& path);
    /// Expects the box of a failed statement; `failedStatements` gives its text afterwards.
    void expectSqlError();

    /// The texts of the "SQL Error" boxes behind their common start: the statement, then the driver's words.
    QStringList sqlErrors() const;
    /// Titles of all boxes so far.
    QStringList titles() const;
    /// What the import or export wrote to the log, all or of one type.
    QStringList logged() const;
    QStringList logged(QtMsgType type) const;
    /// All values of a statement's rows as text.
    QVector<QStringList> rows(const QString& file, const QString& statement) const;
    /// The first value of a statement's rows as text, with a blank between the rows.
    QString column(const QString& file, const QString& statement) const;

    Sandbox sandbox;
    MessageLog log;
    BoxResponder boxes;
    std::unique_ptr<CGlobalVar> variables;
    CIODataBase exchange;
};

/// An update line that writes a navaid of this key, all other values set.
QByteArray navaidLine(const QByteArray& key);

/// The values 101, 102, ... of a row, between semicolons.
QByteArray numberedValues(int count);
