#include "keptobjects.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

#include <iterator>

KeptObjects::KeptObjects(QObject* window) : QObject(window)
{
    keepWithChildren(window);
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeptObjects::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Show && isDialogOfWindow(object)) {
        keepWithChildren(object);
    }
    return event->type() == QEvent::DeferredDelete && isKept(object);
}

bool KeptObjects::isKept(QObject* object) const
{
    return !kept.value(object).isNull();
}

void KeptObjects::keepWithChildren(QObject* root)
{
    // What has gone since the last time: a day's boxes would fill the memory.
    for (auto entry = kept.begin(); entry != kept.end();) {
        entry = entry->isNull() ? kept.erase(entry) : std::next(entry);
    }
    kept.insert(root, root);
    for (QObject* child : root->findChildren<QObject*>()) {
        kept.insert(child, child);
    }
}

bool KeptObjects::isDialogOfWindow(QObject* object) const
{
    const auto* dialog = qobject_cast<QDialog*>(object);
    if (dialog == nullptr || dialog->testAttribute(Qt::WA_DeleteOnClose)) {
        return false;
    }
    const QObject* ancestor = dialog;
    while (ancestor != nullptr && ancestor != parent()) {
        ancestor = ancestor->parent();
    }
    return ancestor != nullptr;
}
