#pragma once

#include "sandbox.h"

#include <QDialog>
#include <QSqlQuery>
#include <QStringList>

class CNavGlobalVar;

/// The program's databases on a simulator in a temporary folder, open and without a window. Countries: DE, ES, FR, FRA.
class EditingWorld
{
public:
    EditingWorld();

    CNavGlobalVar& settings() const;
    /// A query that stands on the row of a key. Its absence ends the test program.
    QSqlQuery navaid(const QString& key) const;
    QSqlQuery waypoint(const QString& key) const;
    /// The row of a key as SQL writes its values, which tells texts from numbers: "65705", "'ABB4FR'", "114.7". Empty
    /// when there is no such row.
    QStringList storedNavaid(const QString& key) const;
    QStringList storedWaypoint(const QString& key) const;
    int count(const QString& file, const QString& table) const;

    Sandbox sandbox;
};

/// A folder "Data" beside the test program, where update files go, without the files of these labels. The files are
/// gone at the end; the folder stays, for other programs of the build use it at the same time.
class DataFolder
{
public:
    explicit DataFolder(const QStringList& labels);
    ~DataFolder();
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;

    /// How the program shows the file's name.
    QString shownName(const QString& label) const;
    bool has(const QString& label) const;
    QByteArray bytes(const QString& label) const;
    void write(const QString& label, const QByteArray& bytes) const;
    /// Puts a folder where the file would go, so that it cannot be written.
    void block(const QString& label) const;

private:
    QString path(const QString& label) const;
    void clear() const;

    QStringList labels;
};

/// Shows a dialog and gives it the keyboard, which no window manager does on a virtual display.
void present(QDialog& dialog);

/// A widget of a dialog by its name; its absence ends the test program.
template <typename T>
T* widgetOf(const QDialog& dialog, const QString& name)
{
    T* widget = dialog.findChild<T*>(name);
    if (!widget)
        qFatal("the dialog has no \"%s\" of this class", qPrintable(name));
    return widget;
}

/// The text of a line edit or of a spin box's value, a combo box's choice, a label, a button.
QString textOf(const QDialog& dialog, const QString& name);
/// Clicks into a line edit or a spin box, marks all of its text and types.
void typeInto(QDialog& dialog, const QString& name, const QString& keys);
/// Chooses an item of a combo box with the keyboard.
void choose(QDialog& dialog, const QString& name, const QString& item);
/// Clicks a button of any kind with the mouse, where its text or its mark is.
void press(QDialog& dialog, const QString& name);
/// The radio buttons of a group box that are checked, by their names.
QStringList checkedIn(const QDialog& dialog, const QString& groupBox);
/// Unchecks all radio buttons of a group box, which the mouse cannot.
void uncheckAllIn(QDialog& dialog, const QString& groupBox);
