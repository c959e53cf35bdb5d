#pragma once

#include <QString>

#include <initializer_list>

/// The pattern with "%1" to "%9" replaced by the values, in one pass: a "%1" inside a value stays what it is.
/// A start fills thousands of patterns. A placeholder without a value stays as well.
QString filled(const QString& pattern, std::initializer_list<QString> values);
