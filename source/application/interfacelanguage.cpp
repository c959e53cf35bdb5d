#include "interfacelanguage.h"

#include <QLocale>

QString systemLanguage()
{
    return QLocale::system().name().section(QLatin1Char('_'), 0, 0);
}

bool isFrench(const QString& language)
{
    return language == QLatin1String("fr");
}
