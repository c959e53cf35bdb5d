#pragma once

#include "demosize.h"

#include <QDir>
#include <QString>

/// Makes the six databases in a folder and fills them: first the rows of the demonstration, then invented ones up to
/// the size asked for. An empty text on success, else what went wrong.
QString writeDemoDatabases(const QDir& folder, const DemoSize& size);
