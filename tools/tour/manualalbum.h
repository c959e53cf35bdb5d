#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// The user's manual's pictures, taken on the way of a tour.
class ManualAlbum
{
public:
    /// Where what a selector finds lies in the map page.
    using ElementPlace = std::function<QRect(const QString&)>;

    /// Empties the folder. An empty name makes an album that keeps nothing.
    explicit ManualAlbum(const QString& folder);

    /// Takes the pictures that belong to a step, of a window or a dialog as it stands. False when one cannot be taken
    /// or saved.
    bool take(QWidget* widget, const QString& step, const ElementPlace& elementPlace);

    /// Names of the pictures that no step has taken yet; none without a folder.
    QStringList missing() const;

private:
    QString folder;
    QStringList taken;
};
