#include "resourceicon.h"

#include <QHash>

QIcon resourceIcon(const QString& path)
{
    // Never destroyed: at the process's end the window system may go first.
    static auto& icons = *new QHash<QString, QIcon>;
    auto found = icons.find(path);
    if (found == icons.end()) {
        found = icons.insert(path, QIcon(path));
    }
    return *found;
}
