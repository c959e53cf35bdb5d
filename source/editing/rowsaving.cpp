#include "rowsaving.h"

#include "databaseplace.h"
#include "keyedstatement.h"
#include "sqlmgr.h"
#include "textfile.h"
#include "updateline.h"
#include "valuesclause.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>

namespace {

QString updateFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("\\Data");
}

} // namespace

void storeRow(const SavedRow& row, QWidget* parent)
{
    if (!databaseIsInPlace(row.connection)) {
        return;
    }
    const QString statement = QStringLiteral("REPLACE INTO ") + row.table + QLatin1Char(' ') + valuesClause(row.values);
    QSqlQuery query(QSqlDatabase::database(row.connection));
    const bool sound = std::all_of(row.values.begin(), row.values.end(),
                                   [](const QString& value) { return staysQuoted(value, QLatin1Char('\'')); });
    if (runKeyed(query, statement, sound)) {
        QMessageBox::information(parent, row.title, row.storedText);
    } else {
        SqlMgr::showQueryError(query);
    }
}

void exportRow(const SavedRow& row, QWidget* parent)
{
    const QString fileName = updateFileName(row.name);
    // A file that cannot be opened goes unnoticed: the message is the same. A full disk has been told.
    if (writeUpdateFile(row.name, composeRowLine(row.database, row.table, row.values)) == WriteEnd::NotWhole) {
        return;
    }
    const QString text =
        QCoreApplication::translate("RowSaving", "Le fichier d'export pour %1\na été enregistré dans %2");
    QMessageBox::information(parent, row.exportTitle, text.arg(row.name, fileName));
}

QString updateFileName(const QString& label)
{
    return QStringLiteral("%1\\%2.CSV").arg(updateFolder(), label);
}

WriteEnd writeUpdateFile(const QString& label, const QString& lines)
{
    return writeTextFileIn(updateFolder(), label + QLatin1String(".CSV"), {lines});
}
