#include "valuesclause.h"

QString valuesClause(const QStringList& values)
{
    // Joined and not filled in one by one: a value may hold what looks like a place to fill.
    return QStringLiteral("VALUES ('") + values.join(QStringLiteral("','")) + QStringLiteral("')");
}
