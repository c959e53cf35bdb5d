#pragma once

#include <QString>

/// The title of a navaid's or a waypoint's marker: a label, "-", the key of its row. A "-" in the label itself shifts
/// the key away.
struct MarkerTitle
{
    bool hasKey;   ///< a key may be empty: that of a row without a name
    QString label; ///< what stands in front of the first "-": the whole of a title without one
    QString key;   ///< what stands between the first "-" and the next one; empty without any
};

/// White space stays: whoever takes a title trimmed trims it before.
MarkerTitle splitMarkerTitle(const QString& title);
