#include "plainboxes.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

namespace {

bool isWithNames(const QObject* object)
{
    const auto* message = qobject_cast<const QMessageBox*>(object);
    if (message != nullptr) {
        // Qt's own box about itself is written in markup.
        return message->windowTitle() != QMessageBox::tr("About Qt");
    }
    return qobject_cast<const QInputDialog*>(object) != nullptr;
}

constexpr int longest = 8000; // characters: no box is that long by itself

/// A name of a million letters would be laid out for many seconds.
void shorten(QLabel& label)
{
    if (label.text().size() > longest) {
        label.setText(label.text().left(longest) + QLatin1String("..."));
    }
}

/// A choice is as wide as its longest entry.
void shorten(QComboBox& choice)
{
    for (int i = 0; i < choice.count(); ++i) {
        if (choice.itemText(i).size() > longest) {
            choice.setItemText(i, choice.itemText(i).left(longest) + QLatin1String("..."));
        }
    }
}

} // namespace

PlainBoxes::PlainBoxes(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PlainBoxes::eventFilter(QObject* object, QEvent* event)
{
    // A box is polished before it is laid out and shown.
    if (event->type() == QEvent::Polish && isWithNames(object)) {
        for (QLabel* label : object->findChildren<QLabel*>()) {
            label->setTextFormat(Qt::PlainText);
            shorten(*label);
        }
        for (QComboBox* choice : object->findChildren<QComboBox*>()) {
            shorten(*choice);
        }
    }
    return false;
}
