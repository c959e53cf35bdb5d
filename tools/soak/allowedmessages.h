#pragma once

#include <QString>

/// Why a warning may stand in the log. Empty when it may not.
QString reasonToAllow(const QString& message);
