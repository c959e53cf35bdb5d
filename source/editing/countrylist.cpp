#include "countrylist.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QSqlDatabase>
#include <QSqlQueryModel>

CountryList::CountryList(QComboBox* countryBox, const QString& connection) : box(countryBox)
{
    auto* model = new QSqlQueryModel(box);
    model->setQuery(QStringLiteral("SELECT cuid FROM CTY"), QSqlDatabase::database(connection));
    // The model reads a few hundred rows at a time; a half-read table would also stay locked for the simulator.
    while (model->canFetchMore()) {
        model->fetchMore();
    }
    const QSignalBlocker silent(box);
    box->setModel(model);
}

void CountryList::select(const QString& code)
{
    const QSignalBlocker silent(box);
    unlisted = code;
    box->setCurrentIndex(box->findData(code, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

QString CountryList::code() const
{
    return box->currentIndex() < 0 ? unlisted : box->currentText();
}
