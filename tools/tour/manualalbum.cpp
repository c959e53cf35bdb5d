#include "manualalbum.h"

#include "album.h"
#include "manualpictures.h"
#include "smallpalette.h"

#include <QPixmap>
#include <QWidget>

namespace {

constexpr int colours = 128;
constexpr int around = 40; // pixels of the map around an element

/// The widget itself when it bears the name or none is asked for, else its child of that name; null without one.
QWidget* namedPart(QWidget* widget, const QString& name)
{
    return name.isEmpty() || widget->objectName() == name ? widget : widget->findChild<QWidget*>(name);
}

/// What of the widget the picture shows; null when it is not there.
QRect partOf(QWidget* widget, const ManualPicture& picture, const ManualAlbum::ElementPlace& elementPlace)
{
    if (*picture.element == '\0') {
        return picture.part.isNull() ? widget->rect() : picture.part.intersected(widget->rect());
    }
    const QRect place = elementPlace(QString::fromLatin1(picture.element));
    return place.isEmpty() ? QRect() : place.adjusted(-around, -around, around, around).intersected(widget->rect());
}

} // namespace

ManualAlbum::ManualAlbum(const QString& folderName) : folder(emptiedFolder(folderName, QStringLiteral("*.png"))) {}

bool ManualAlbum::take(QWidget* widget, const QString& step, const ElementPlace& elementPlace)
{
    if (folder.isEmpty()) {
        return true;
    }
    bool whole = true;
    for (const ManualPicture& picture : manualPictures()) {
        if (step != QLatin1String(picture.step)) {
            continue;
        }
        const QString name = QString::fromLatin1(picture.name);
        QWidget* shown = namedPart(widget, QString::fromLatin1(picture.widget));
        const QRect part = shown == nullptr ? QRect() : partOf(shown, picture, elementPlace);
        const QString path = QStringLiteral("%1/%2.png").arg(folder, name);
        whole = !part.isEmpty() && withFewColours(shown->grab(part).toImage(), colours).save(path) && whole;
        taken << name;
    }
    return whole;
}

QStringList ManualAlbum::missing() const
{
    QStringList names;
    for (const ManualPicture& picture : manualPictures()) {
        const QString name = QString::fromLatin1(picture.name);
        if (!folder.isEmpty() && !taken.contains(name)) {
            names << name;
        }
    }
    return names;
}
