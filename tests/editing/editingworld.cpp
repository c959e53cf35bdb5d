// Databases without a window, and keys and mouse for the dialogs.
#include "editingworld.h"

#include "cnavglobalvar.h"
#include "datadictionary.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSqlDatabase>
#include <QtTest>

namespace {

template <std::size_t count>
QString quotedColumns(const ColumnDef (&columns)[count])
{
    QStringList parts;
    for (const ColumnDef& column : columns)
        parts << QStringLiteral("quote(%1)").arg(column.code);
    return parts.join(',');
}

QStringList firstRow(const QVector<QVariantList>& rows)
{
    QStringList values;
    for (const QVariant& value : rows.value(0))
        values << value.toString();
    return values;
}

QSqlQuery rowOf(const QString& connection, const QString& table, const QString& key)
{
    QSqlQuery query(QSqlDatabase::database(connection));
    if (!query.exec(QStringLiteral("SELECT * FROM %1 WHERE ukey = '%2'").arg(table, key)) || !query.first())
        qFatal("no row \"%s\"", qPrintable(key));
    return query;
}

} // namespace

EditingWorld::EditingWorld()
{
    for (const char* code : {"DE", "ES", "FR", "FRA"})
        sandbox.addCountry(code, code);
    settings().dirZephan.setPath(sandbox.root());
    settings().init();
}

CNavGlobalVar& EditingWorld::settings() const
{
    return *CNavGlobalVar::instance();
}

QSqlQuery EditingWorld::navaid(const QString& key) const
{
    return rowOf(dbfile::gen, "NAV", key);
}

QSqlQuery EditingWorld::waypoint(const QString& key) const
{
    return rowOf(dbfile::wpt, "WPT", key);
}

QStringList EditingWorld::storedNavaid(const QString& key) const
{
    return firstRow(sandbox.sql(dbfile::gen, "SELECT " + quotedColumns(fieldsNAV) + " FROM NAV WHERE ukey = ?", {key}));
}

QStringList EditingWorld::storedWaypoint(const QString& key) const
{
    return firstRow(sandbox.sql(dbfile::wpt, "SELECT " + quotedColumns(fieldsWPT) + " FROM WPT WHERE ukey = ?", {key}));
}

int EditingWorld::count(const QString& file, const QString& table) const
{
    return sandbox.sqlValue(file, "SELECT COUNT(*) FROM " + table).toInt();
}

DataFolder::DataFolder(const QStringList& fileLabels) : labels(fileLabels)
{
    QDir(QCoreApplication::applicationDirPath()).mkpath("Data");
    clear();
}

DataFolder::~DataFolder()
{
    clear();
}

QString DataFolder::shownName(const QString& label) const
{
    return QCoreApplication::applicationDirPath() + "\\Data\\" + label + ".CSV";
}

QString DataFolder::path(const QString& label) const
{
    return QCoreApplication::applicationDirPath() + "/Data/" + label + ".CSV";
}

bool DataFolder::has(const QString& label) const
{
    return QFile::exists(path(label));
}

QByteArray DataFolder::bytes(const QString& label) const
{
    QFile file(path(label));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void DataFolder::write(const QString& label, const QByteArray& bytes) const
{
    QFile file(path(label));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s", qPrintable(file.fileName()));
}

void DataFolder::block(const QString& label) const
{
    if (!QDir().mkpath(path(label) + "/in the way"))
        qFatal("%s", qPrintable(path(label)));
}

void DataFolder::clear() const
{
    for (const QString& label : labels) {
        QFile::remove(path(label));
        QDir(path(label)).removeRecursively();
    }
}

void present(QDialog& dialog)
{
    dialog.show();
    QApplication::setActiveWindow(&dialog);
}

QString textOf(const QDialog& dialog, const QString& name)
{
    const auto* widget = widgetOf<QWidget>(dialog, name);
    if (const auto* box = qobject_cast<const QComboBox*>(widget))
        return box->currentText();
    return widget->property("text").toString();
}

void typeInto(QDialog& dialog, const QString& name, const QString& keys)
{
    auto* widget = widgetOf<QWidget>(dialog, name);
    auto* edit = qobject_cast<QLineEdit*>(widget);
    if (!edit)
        edit = widget->findChild<QLineEdit*>();
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keySequence(edit, QKeySequence::SelectAll);
    QTest::keyClicks(widget, keys);
}

void choose(QDialog& dialog, const QString& name, const QString& item)
{
    auto* box = widgetOf<QComboBox>(dialog, name);
    box->setFocus(Qt::TabFocusReason);
    const int wanted = box->findText(item);
    if (wanted < 0)
        qFatal("no item \"%s\"", qPrintable(item));
    // The keyboard's search begins anew after a pause; single steps need none.
    while (box->currentIndex() != wanted)
        QTest::keyClick(box, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
}

void press(QDialog& dialog, const QString& name)
{
    auto* button = widgetOf<QAbstractButton>(dialog, name);
    // A check box or a radio button listens at its mark and its text only, not in the empty space behind them.
    const bool marked = qobject_cast<QRadioButton*>(button) || qobject_cast<QCheckBox*>(button);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier,
                      marked ? QPoint(8, button->height() / 2) : button->rect().center());
}

QStringList checkedIn(const QDialog& dialog, const QString& groupBox)
{
    QStringList names;
    for (const auto* button : widgetOf<QGroupBox>(dialog, groupBox)->findChildren<QRadioButton*>()) {
        if (button->isChecked())
            names << button->objectName();
    }
    return names;
}

void uncheckAllIn(QDialog& dialog, const QString& groupBox)
{
    for (auto* button : widgetOf<QGroupBox>(dialog, groupBox)->findChildren<QRadioButton*>()) {
        QButtonGroup* group = button->group();
        if (group)
            group->setExclusive(false);
        button->setAutoExclusive(false);
        button->setChecked(false);
        button->setAutoExclusive(true);
        if (group)
            group->setExclusive(true);
    }
}
