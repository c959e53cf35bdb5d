#pragma once

#include "countrylist.h"
#include "positionfields.h"

#include <QDialog>
#include <QStringList>

#include <memory>

class CNavGlobalVar;
class QSqlQuery;

namespace Ui {
class CDialogWpt;
}

/// Creates or changes one row of the table WPT, on wish with an update file of it.
class CDialogWpt : public QDialog
{
    Q_OBJECT

public:
    /// A new waypoint at a place in arc seconds.
    CDialogWpt(double latSec, double lonSec, QWidget* parent);
    /// The waypoint of a row of SELECT *, on which the query stands.
    CDialogWpt(const QSqlQuery& query, QWidget* parent);
    ~CDialogWpt() override;

    /// Arc seconds: where the waypoint was when the dialog began, and once it is accepted where it is.
    double lat = 0.0;
    double lon = 0.0;
    /// What the map page has to evaluate once the dialog is accepted.
    QString script;

public slots:
    void on_cbCtry_currentIndexChanged(int index);
    /// A press on the position opens the dialog for it. Always false: the press goes on.
    bool eventFilter(QObject* object, QEvent* event) override;
    /// Shows the row on which the query stands.
    void setData(const QSqlQuery& qry);
    void on_pbOK_clicked();
    void on_pbCancel_clicked();
    void on_leName_textEdited(const QString& arg1);

private:
    explicit CDialogWpt(QWidget* parent);

    QStringList rowValues(int type, int usage) const;
    QString markerScript(int usage) const;
    QString usageWord() const;

    std::unique_ptr<Ui::CDialogWpt> ui;
    CNavGlobalVar* settings; ///< the singleton, not owned
    PositionFields position;
    CountryList country;

    // Columns of the row that the form does not show. A new waypoint is tied to no VOR: the map shows only those.
    QString stat;
    int wloc = 'N';
    double walt = 0.0;
    double wmag = 0.0;
    double wbrg = 0.0;
    double wdis = 0.0;
    QString wnav;
};
