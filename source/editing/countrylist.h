#pragma once

#include <QString>

class QComboBox;

/// The country of a row: a box with all codes of the table CTY.
///
/// Filling the box and selecting a row's country say nothing to the slots that listen for the user's choice: they make
/// keys. A country that the table does not have shows as none and is kept, until the user chooses another.
class CountryList
{
public:
    /// `connection` is the database that has CTY; without it the list is empty.
    CountryList(QComboBox* countryBox, const QString& connection);

    void select(const QString& code);
    /// Empty when there is nothing to choose from.
    QString code() const;

private:
    QComboBox* box;
    QString unlisted; ///< the country while the box has none selected
};
