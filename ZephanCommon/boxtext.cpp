#include "boxtext.h"

QString boxText(const QString& text)
{
    constexpr int longest = 2000;
    return text.size() <= longest ? text : text.left(longest) + QLatin1String("...");
}
