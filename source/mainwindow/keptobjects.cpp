#include "keptobjects.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>

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
    return event->type() == QEvent::DeferredDelete && (object == this || kept.contains(object));
}

void KeptObjects::keep(QObject* object)
{
    // Not itself: it tells its end when the set is gone already.
    if (object == this || kept.contains(object)) {
        return;
    }
    kept.insert(object);
    connect(object, &QObject::destroyed, this, [this, object] { kept.remove(object); });
}

void KeptObjects::keepWithChildren(QObject* root)
{
    keep(root);
    for (QObject* child : root->findChildren<QObject*>()) {
        keep(child);
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
