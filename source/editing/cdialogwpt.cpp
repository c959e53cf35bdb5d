#include "cdialogwpt.h"
#include "ui_cdialogwpt.h"

#include "cnavglobalvar.h"
#include "mapscript.h"
#include "markertext.h"
#include "radiochoices.h"
#include "rowsaving.h"
#include "textfields.h"

#include <QSqlQuery>

namespace {

using Form = Ui_CDialogWpt;

struct UsageChoice
{
    QRadioButton* Form::*button;
    int stored;
    const char* word; ///< in the pop-up
};

// The numbers in the buttons' texts are not the stored ones: 4 and 5 are exchanged, as the simulator has them.
constexpr UsageChoice usages[] = {
    {&Form::rbHigh, 1, "High"}, {&Form::rbLow, 2, "Low"},       {&Form::rbBoth, 3, "High/Low"},
    {&Form::rbRnav, 5, "RNAV"}, {&Form::rbTerm, 4, "Terminal"}, {&Form::rbVFR_2, 6, ""},
};

struct TypeChoice
{
    QRadioButton* Form::*button;
    int stored;
};

constexpr TypeChoice types[] = {
    {&Form::rbUnNamed, 1},  {&Form::rbNDB, 4},  {&Form::rbNamed, 6},
    {&Form::rbOffRoute, 9}, {&Form::rbVFR, 10}, {&Form::rbRNAV, 12},
};

// A group without a checked button gives 0.
template <typename Choice>
int storedValue(const Choice* choice)
{
    return choice != nullptr ? choice->stored : 0;
}

std::unique_ptr<Ui::CDialogWpt> formOn(CDialogWpt* dialog)
{
    auto form = std::make_unique<Ui::CDialogWpt>();
    form->setupUi(dialog);
    return form;
}

} // namespace

CDialogWpt::CDialogWpt(QWidget* parent)
    : QDialog(parent), ui(formOn(this)), settings(CNavGlobalVar::instance()),
      position(ui->sbLat, ui->sbLon, ui->leTile, *settings, this), country(ui->cbCtry, settings->dbGEN)
{
}

CDialogWpt::CDialogWpt(double latSec, double lonSec, QWidget* parent) : CDialogWpt(parent)
{
    lat = latSec;
    lon = lonSec;
    position.show(lat, lon);
    ui->rbHigh->setChecked(true);
}

CDialogWpt::CDialogWpt(const QSqlQuery& query, QWidget* parent) : CDialogWpt(parent)
{
    setData(query);
}

CDialogWpt::~CDialogWpt() = default;

void CDialogWpt::setData(const QSqlQuery& qry)
{
    showStored(ui->leIden, qry.value(1).toString());
    showStored(ui->leUkey, qry.value(2).toString());
    showStored(ui->leName, qry.value(3).toString());
    country.select(qry.value(4).toString());
    stat = qry.value(5).toString();
    wloc = qry.value(6).toInt();
    checkStored(*ui, types, qry.value(7).toInt());
    checkStored(*ui, usages, qry.value(8).toInt());
    position.showStored(qry.value(9).toString(), qry.value(10).toString(), qry.value(0).toString());
    lat = position.latSec();
    lon = position.lonSec();
    walt = qry.value(11).toDouble();
    wmag = qry.value(12).toDouble();
    wbrg = qry.value(13).toDouble();
    wdis = qry.value(14).toDouble();
    wnav = qry.value(15).toString();
}

void CDialogWpt::on_leName_textEdited(const QString& arg1)
{
    if (!ui->leName->hasFocus()) {
        return;
    }
    showInCapitals(ui->leName, arg1);
    const QString name = ui->leName->text();
    ui->leIden->setText(name.left(4));
    ui->leUkey->setText(name.left(5) + country.code());
}

void CDialogWpt::on_cbCtry_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    // Two letters make way for the new code, however long the former one was.
    QString key = ui->leUkey->text();
    key.chop(2);
    ui->leUkey->setText(key + country.code());
}

bool CDialogWpt::eventFilter(QObject* object, QEvent* event)
{
    if (position.isPress(object, event)) {
        position.change(this);
    }
    return false;
}

QStringList CDialogWpt::rowValues(int type, int usage) const
{
    return {ui->leTile->text(),     ui->leIden->text(),
            ui->leUkey->text(),     ui->leName->text(),
            country.code(),         stat,
            QString::number(wloc),  QString::number(type),
            QString::number(usage), ui->sbLat->text(),
            ui->sbLon->text(),      QString::number(walt),
            QString::number(wmag),  QString::number(wbrg),
            QString::number(wdis),  wnav};
}

// The type decides for "VFR"; the usage of that name has no word.
QString CDialogWpt::usageWord() const
{
    const UsageChoice* usage = checkedChoice(*ui, usages);
    if (ui->rbVFR->isChecked()) {
        return QStringLiteral("VFR");
    }
    return usage != nullptr ? QString::fromLatin1(usage->word) : QString();
}

QString CDialogWpt::markerScript(int usage) const
{
    const QString name = ui->leName->text();
    return mapscript::addWptMarker2({mapscript::storedPlace(lat, lon), name, ui->leUkey->text(), usage,
                                     markertext::waypoint(ui->leIden->text(), name, usageWord(), lat, lon)});
}

void CDialogWpt::on_pbOK_clicked()
{
    const int type = storedValue(checkedChoice(*ui, types));
    const int usage = storedValue(checkedChoice(*ui, usages));
    lat = position.latSec();
    lon = position.lonSec();
    const QString name = ui->leName->text();
    const SavedRow row{settings->dbWPT,
                       QStringLiteral("WPT"),
                       QStringLiteral("WPT"),
                       rowValues(type, usage),
                       name,
                       tr("Nouveau WAYPOINT"),
                       tr("Nouveau WAYPOINT: export"),
                       tr("%1 a été modifié/ajouté à la base WPT.db").arg(name)};
    if (ui->cbUpdateDB->isChecked()) {
        storeRow(row, this);
    }
    if (ui->cbSaveCSV->isChecked()) {
        exportRow(row, this);
    }
    script = markerScript(usage);
    setResult(Accepted);
    hide();
}

void CDialogWpt::on_pbCancel_clicked()
{
    close();
}
