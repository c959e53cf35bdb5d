#pragma once

#include <QStringList>

class QSqlQuery;

/// The marker scripts of a table's rows, one for each row of the country shown, in the order of the rows.
///
/// Each walks on from the row on which the query stands, to the end; a forward-only query will do. The rows are those
/// of SELECT *.
namespace markerfeed {

QStringList airports(QSqlQuery& rows);
QStringList navaids(QSqlQuery& rows);
QStringList waypoints(QSqlQuery& rows);

} // namespace markerfeed
