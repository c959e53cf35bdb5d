#pragma once

#include <QString>
#include <QStringList>

/// The clause of a statement that writes one row: VALUES ('a','b'). The values go in as they are: an apostrophe in one
/// spoils the statement.
QString valuesClause(const QStringList& values);
