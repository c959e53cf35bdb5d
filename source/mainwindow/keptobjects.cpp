#include "keptobjects.h"

#include <QCoreApplication>
#include <QEvent>

KeptObjects::KeptObjects(QObject* window) : QObject(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeptObjects::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::DeferredDelete || object->objectName().isEmpty()) {
        return false;
    }
    const QObject* ancestor = object;
    while (ancestor != nullptr && ancestor != parent()) {
        ancestor = ancestor->parent();
    }
    return ancestor != nullptr;
}
