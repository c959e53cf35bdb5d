#pragma once

#include <QIcon>

/// The icon of a resource by its path, made once and shared; in a selected row it stands on a white rim. Empty when
/// there is no such resource. Each icon keeps pictures of its own in the cache of the whole program: one made anew for
/// each row and each refresh would crowd out all others.
QIcon resourceIcon(const QString& path);
