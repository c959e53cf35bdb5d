#include "resourceicon.h"

#include <QHash>
#include <QPainter>
#include <QPixmap>

namespace {

/// The picture on a white rim: the icons' hues are made for tool bars, and on the ground of a selected row blue would
/// stand on blue.
QPixmap onWhiteRim(const QPixmap& picture)
{
    QPixmap white = picture;
    QPainter bleach(&white);
    bleach.setCompositionMode(QPainter::CompositionMode_SourceIn);
    bleach.fillRect(white.rect(), Qt::white);
    bleach.end();

    QPixmap rimmed(picture.size());
    rimmed.fill(Qt::transparent);
    QPainter painter(&rimmed);
    for (const int x : {-1, 0, 1}) {
        for (const int y : {-1, 0, 1}) {
            painter.drawPixmap(x, y, white);
        }
    }
    painter.drawPixmap(0, 0, picture);
    return rimmed;
}

QIcon iconOf(const QString& path)
{
    QIcon icon(path);
    const QPixmap picture(path);
    if (!picture.isNull()) {
        icon.addPixmap(onWhiteRim(picture), QIcon::Selected);
    }
    return icon;
}

} // namespace

QIcon resourceIcon(const QString& path)
{
    // Never destroyed: at the process's end the window system may go first.
    static auto& icons = *new QHash<QString, QIcon>;
    auto found = icons.find(path);
    if (found == icons.end()) {
        found = icons.insert(path, iconOf(path));
    }
    return *found;
}
