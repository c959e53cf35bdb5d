// The warnings that the program's own ways bring about.
#include "allowedmessages.h"

namespace {

struct Allowed
{
    const char* beginning;
    const char* reason;
};

const Allowed allowed[] = {
    {"This plugin does not support propagateSizeHints()", "the offscreen platform has no window manager to tell"},
    {"QAction::event: Ambiguous shortcut overload: Ctrl+L",
     "Ctrl+L belongs to a button and to a menu entry, so that it does neither"},
    {"CIODataBase::importGEN",
     "the update file of a deleted procedure names its database ROUTE, which the import does not know"},
};

} // namespace

QString reasonToAllow(const QString& message)
{
    for (const Allowed& entry : allowed) {
        if (message.startsWith(QLatin1String(entry.beginning))) {
            return QString::fromUtf8(entry.reason);
        }
    }
    return QString();
}
