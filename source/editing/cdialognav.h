#pragma once

#include "countrylist.h"
#include "positionfields.h"

#include <QDialog>
#include <QStringList>

#include <memory>

class CNavGlobalVar;
class QSqlQuery;

namespace Ui {
class CDialogNav;
}

/// Creates or changes one row of the table NAV, on wish with an update file of it.
class CDialogNav : public QDialog
{
    Q_OBJECT

public:
    /// A new navaid at a place in arc seconds.
    CDialogNav(double latSec, double lonSec, QWidget* parent);
    /// The navaid of a row of SELECT *, on which the query stands.
    CDialogNav(const QSqlQuery& query, QWidget* parent);
    ~CDialogNav() override;

    /// Arc seconds: where the navaid was when the dialog began, and once it is accepted where it is.
    double lat = 0.0;
    double lon = 0.0;
    /// What the map page has to evaluate once the dialog is accepted; empty for a navaid without a type.
    QString script;

public slots:
    void on_cbCtry_currentIndexChanged(int index);
    /// A press on the position opens the dialog for it. Always false: the press goes on.
    bool eventFilter(QObject* object, QEvent* event) override;
    /// Shows the row on which the query stands.
    void setData(const QSqlQuery& qry);
    /// Another type makes another key.
    void updateButton(int id);
    void on_pbOK_clicked();
    void on_pbCancel_clicked();
    /// Makes the key of an identifier, and asks when the table has such keys.
    void on_leIden_textEdited(const QString& arg1);

private:
    explicit CDialogNav(QWidget* parent);

    int countOfKeys(const QString& start) const;
    bool frequencyIsInBand(bool isNdb);
    QStringList rowValues(int type, int usage) const;
    QString markerScript(int usage, bool isNdb) const;

    std::unique_ptr<Ui::CDialogNav> ui;
    CNavGlobalVar* settings; ///< the singleton, not owned
    PositionFields position;
    CountryList country;

    // Columns of the row that the form does not show.
    double nmdv = 0.0;
    double nsvr = 0.0;
    QString stat;
    int ncls = 0;
    int nalt = 0;
    double npow = 0.0;
    double nrgn = 0.0;
};
