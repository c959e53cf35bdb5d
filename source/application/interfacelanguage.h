#pragma once

#include <QString>

/// The two-letter language of the system's locale: what stands before the first "_" of its name.
QString systemLanguage();

/// True for exactly "fr": the sources' own language, which needs no catalogue and takes the French map page.
bool isFrench(const QString& language);
