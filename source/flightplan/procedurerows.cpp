#include "procedurerows.h"

#include "keyedstatement.h"
#include "valuesclause.h"

namespace {

int pointType(const CFpLine& line)
{
    if (line.usage == QLatin1String("snav")) {
        return line.navType;
    }
    return line.usage == QLatin1String("uswp") ? userPointType : airportPointType;
}

QString storedArcSeconds(double arcSeconds)
{
    return QString::number(arcSeconds, 'f', 3);
}

// A STAR's statement never had the semicolon.
QString insertion(const QStringList& values, ProcedureType type)
{
    return QStringLiteral("INSERT OR REPLACE INTO SIDSTAR ") + valuesClause(values) +
           (type == ProcedureType::Sid ? QStringLiteral(";") : QString());
}

} // namespace

QStringList procedureRow(const CFpLine& line, int number, const StoredProcedure& procedure)
{
    const QString numberText = QString::number(number);
    return {QStringLiteral("0"), // no tile
            procedure.name + numberText,
            procedure.airportKey,
            procedure.name,
            numberText,
            QString::number(static_cast<int>(procedure.type)),
            line.iden,
            QString::number(pointType(line)),
            QString::number(line.elev), // and not the altitude flown
            storedArcSeconds(line.latS),
            storedArcSeconds(line.lonS)};
}

QStringList procedureStatements(const QList<CFpLinePtr>& lines, const StoredProcedure& procedure)
{
    QStringList statements{QStringLiteral("DELETE FROM SIDSTAR WHERE strm = '%1';").arg(procedure.name)};
    int number = 0;
    for (const CFpLinePtr& line : lines) {
        number += firstProcedureNumber;
        statements << insertion(procedureRow(*line, number, procedure), procedure.type);
    }
    return statements;
}

bool isSoundStatement(int place, const QList<CFpLinePtr>& lines, const StoredProcedure& procedure)
{
    const auto isSound = [](const QString& value) { return staysQuoted(value, QLatin1Char('\'')); };
    if (place == 0) {
        return isSound(procedure.name);
    }
    return isSound(procedure.name) && isSound(procedure.airportKey) && isSound(lines.at(place - 1)->iden);
}
