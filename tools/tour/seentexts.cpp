#include "seentexts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMetaProperty>
#include <QTabBar>
#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

namespace {

/// Properties that hold text for a reader. Others hold names, patterns and addresses.
const char* const readProperties[] = {
    "text",      "windowTitle",     "toolTip", "statusTip", "whatsThis",      "title",     "informativeText",
    "plainText", "placeholderText", "prefix",  "suffix",    "accessibleName", "labelText", "iconText",
};

const char* const pageAttributes[] = {"title", "aria-label", "placeholder"};

/// Whether what stands in it comes from the data or from the user.
bool holdsData(const QObject& object)
{
    return qobject_cast<const QLineEdit*>(&object) != nullptr;
}

QStringList cellsOf(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QStringList cells;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            cells << model.index(row, column, parent).data().toString();
        }
        cells += cellsOf(model, model.index(row, 0, parent));
    }
    return cells;
}

/// Also what it would say at another time: its words are all in one table.
QStringList pageTexts(QWebFrame& frame)
{
    const QWebElement page = frame.documentElement();
    QStringList texts = page.toPlainText().split('\n');
    texts += frame.evaluateJavaScript("Object.keys(pageWords).map(key => pageWords[key])").toStringList();
    for (const char* attribute : pageAttributes) {
        for (const QWebElement& element : page.findAll(QStringLiteral("[%1]").arg(QLatin1String(attribute)))) {
            texts << element.attribute(QLatin1String(attribute));
        }
    }
    return texts;
}

} // namespace

void SeenTexts::readAll()
{
    QList<const QObject*> objects;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        objects << top;
        for (const QObject* object : top->findChildren<QObject*>()) {
            objects << object;
        }
    }
    for (const QObject* object : qAsConst(objects)) {
        readProperties(*object);
        readItems(*object);
    }
}

void SeenTexts::add(const QString& words)
{
    wordTexts.insert(words.simplified());
}

void SeenTexts::readProperties(const QObject& object)
{
    QSet<QString>& where = holdsData(object) ? dataTexts : wordTexts;
    for (const char* name : ::readProperties) {
        const QVariant value = object.property(name);
        if (value.userType() == QMetaType::QString) {
            where.insert(value.toString().simplified());
        }
    }
}

void SeenTexts::readItems(const QObject& object)
{
    if (const auto* header = qobject_cast<const QHeaderView*>(&object)) {
        for (int section = 0; section < header->count(); ++section) {
            add(header->model()->headerData(section, header->orientation()).toString());
        }
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&object)) {
        if (view->model() != nullptr) {
            const QStringList cells = cellsOf(*view->model(), {});
            dataTexts += QSet<QString>(cells.begin(), cells.end());
        }
    } else if (const auto* bar = qobject_cast<const QTabBar*>(&object)) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            add(bar->tabText(tab));
        }
    } else if (const auto* map = qobject_cast<const QWebView*>(&object)) {
        for (const QString& text : pageTexts(*map->page()->mainFrame())) {
            add(text);
        }
    }
}

const QSet<QString>& SeenTexts::words() const
{
    return wordTexts;
}

const QSet<QString>& SeenTexts::data() const
{
    return dataTexts;
}
