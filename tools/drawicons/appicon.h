#pragma once

#include <QByteArray>
#include <QImage>
#include <QVector>

/// Edge lengths in pixels of the program's own icon, rising: what desktops and the Windows shell ask for.
extern const QVector<int> appIconSizes;

/// The program's own icon: an aeroplane on its route over the earth's edge. `size` is the edge in pixels, 16 or more;
/// the small ones leave out what would only blur. Transparent outside the rounded square.
QImage appIcon(int size);

/// The bytes of a Windows icon file with one PNG entry for each image, in the given order. Every image is square, 256
/// pixels at most. Empty if an image cannot be written as PNG.
QByteArray icoBytes(const QVector<QImage>& images);
