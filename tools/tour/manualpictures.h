#pragma once

#include <QRect>
#include <QVector>

/// A picture of the user's manual: which of the tour's pictures it is, and what of it is shown.
struct ManualPicture
{
    const char* name;    ///< of its file in docs/images/manual, without ".png"
    const char* step;    ///< the tour's picture that it is taken with
    const char* widget;  ///< object name of the part of the window that is shown; empty for all of it
    const char* element; ///< selector of what the map page shows, with some of the map around it; empty for none
    QRect part;          ///< of the widget, in pixels; empty for all of it
};

/// In the order of the manual.
const QVector<ManualPicture>& manualPictures();
