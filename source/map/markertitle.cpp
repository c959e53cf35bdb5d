#include "markertitle.h"

#include <QStringList>

MarkerTitle splitMarkerTitle(const QString& title)
{
    const QStringList parts = title.split(QLatin1Char('-'), Qt::KeepEmptyParts);
    return {parts.size() > 1, parts.value(0), parts.value(1)};
}
