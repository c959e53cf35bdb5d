#pragma once

#include <QByteArray>
#include <QImage>

/// The bytes of a Windows bitmap with 32 bits a pixel and a transparency channel (header of version 4).
///
/// Qt reads such files with their transparency and writes none, hence this writer.
QByteArray bitmapBytes(const QImage& image);
