#pragma once

#include <QIcon>

/// The icon of a resource by its path, made once and shared. Each icon keeps pictures of its own in the cache of the
/// whole program: one made anew for each row and each refresh would crowd out all others.
QIcon resourceIcon(const QString& path);
