#include "cdialognav.h"
#include "ui_cdialognav.h"

#include "cnavglobalvar.h"
#include "keyedstatement.h"
#include "mapscript.h"
#include "markertext.h"
#include "radiochoices.h"
#include "rowsaving.h"
#include "textfields.h"

#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

using Form = Ui_CDialogNav;

struct TypeChoice
{
    QRadioButton* Form::*button;
    int stored;   ///< as a row is read
    int written;  ///< as a row is written
    int keyDigit; ///< in the key, between identifier and country
    bool isNdb;
};

constexpr TypeChoice types[] = {
    {&Form::rbVOR, 1, 1, 1, false},
    // Read as 4 and written as 5, as the rows of this dialog always were: what it wrote, it does not know again.
    {&Form::rbTACAN, 4, 5, 2, false},
    {&Form::rbNDB, 8, 8, 5, true},
    {&Form::rbVORDME, 17, 17, 4, false},
    {&Form::rbNDBDME, 24, 24, 7, true},
};

struct UsageChoice
{
    QRadioButton* Form::*button;
    int stored;
};

constexpr UsageChoice usages[] = {
    {&Form::rbHigh, 1}, {&Form::rbLow, 2}, {&Form::rbBoth, 3}, {&Form::rbTerm, 4}, {&Form::rbRnav, 5},
};

// Without a checked button neither an NDB nor anything that has a value or a digit.
TypeChoice checkedType(const Ui::CDialogNav& ui)
{
    const TypeChoice* choice = checkedChoice(ui, types);
    return choice != nullptr ? *choice : TypeChoice{nullptr, 0, 0, 0, false};
}

std::unique_ptr<Ui::CDialogNav> formOn(CDialogNav* dialog)
{
    auto form = std::make_unique<Ui::CDialogNav>();
    form->setupUi(dialog);
    return form;
}

} // namespace

CDialogNav::CDialogNav(QWidget* parent)
    : QDialog(parent), ui(formOn(this)), settings(CNavGlobalVar::instance()),
      position(ui->sbLat, ui->sbLon, ui->leTile, *settings, this), country(ui->cbCtry, settings->dbGEN)
{
}

CDialogNav::CDialogNav(double latSec, double lonSec, QWidget* parent) : CDialogNav(parent)
{
    lat = latSec;
    lon = lonSec;
    position.show(lat, lon);
    ui->rbHigh->setChecked(true);
}

CDialogNav::CDialogNav(const QSqlQuery& query, QWidget* parent) : CDialogNav(parent)
{
    setData(query);
}

CDialogNav::~CDialogNav() = default;

void CDialogNav::setData(const QSqlQuery& qry)
{
    showStored(ui->leUkey, qry.value(1).toString());
    showStored(ui->leIden, qry.value(2).toString());
    showStored(ui->leName, qry.value(3).toString());
    ui->sbFreq->setValue(qry.value(4).toDouble());
    nmdv = qry.value(5).toDouble();
    nsvr = qry.value(6).toDouble();
    country.select(qry.value(7).toString());
    stat = qry.value(8).toString();
    if (!checkStored(*ui, types, qry.value(9).toInt())) {
        ui->rbVOR->setChecked(true); // the form's default, also when another row was shown before
    }
    ncls = qry.value(10).toInt();
    checkStored(*ui, usages, qry.value(11).toInt());
    position.showStored(qry.value(12).toString(), qry.value(13).toString(), qry.value(0).toString());
    lat = position.latSec();
    lon = position.lonSec();
    nalt = qry.value(14).toInt();
    npow = qry.value(15).toDouble();
    nrgn = qry.value(16).toDouble();
}

void CDialogNav::on_leIden_textEdited(const QString& arg1)
{
    showInCapitals(ui->leIden, arg1);
    const QString iden = ui->leIden->text();
    const QString keyStart = iden + QString::number(checkedType(*ui).keyDigit);
    const QString key = keyStart + country.code();
    const int count = countOfKeys(keyStart);
    if (count == 0) {
        ui->leUkey->setText(key);
        return;
    }
    const QString question = tr("Le navaid %1 existe déja.\nVoulez vous continuer ?").arg(iden);
    if (QMessageBox::question(this, tr("Nouveau NAVAID"), question) == QMessageBox::Yes) {
        // The count keeps the key unique.
        ui->leUkey->setText(key + QString::number(count));
    }
}

int CDialogNav::countOfKeys(const QString& start) const
{
    QSqlQuery query(QSqlDatabase::database(settings->dbGEN));
    const QString statement = QStringLiteral("SELECT COUNT(ukey) FROM NAV WHERE ukey LIKE \"%1%\";").arg(start);
    if (!runKeyed(query, statement, staysQuoted(start, QLatin1Char('"')))) {
        SqlMgr::showQueryError(query);
    }
    return query.next() ? query.value(0).toInt() : 0;
}

void CDialogNav::on_cbCtry_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    on_leIden_textEdited(ui->leIden->text());
}

void CDialogNav::updateButton(int id)
{
    Q_UNUSED(id)
    on_leIden_textEdited(ui->leIden->text());
}

bool CDialogNav::eventFilter(QObject* object, QEvent* event)
{
    if (position.isPress(object, event)) {
        position.change(this);
    }
    return false;
}

bool CDialogNav::frequencyIsInBand(bool isNdb)
{
    const double frequency = ui->sbFreq->value();
    if (isNdb ? frequency >= 180.0 && frequency < 1750.0 : frequency >= 108.0 && frequency < 118.0) {
        return true;
    }
    // The messages are about the channels in use: the limits of the test are wider for a VOR, narrower for an NDB.
    const QString title = isNdb ? tr("Création NDB") : tr("Création VOR");
    QMessageBox::warning(this, title,
                         isNdb ? tr("La fréquence doit être comprise entre 180 et 1750 Khz.")
                               : tr("La fréquence doit être comprise entre 108.000 et 117.95 Mhz."));
    return false;
}

QStringList CDialogNav::rowValues(int type, int usage) const
{
    return {ui->leTile->text(), ui->leUkey->text(), ui->leIden->text(), ui->leName->text(),
            // Seven digits hold what the box can hold, with a point in every language.
            QString::number(ui->sbFreq->value(), 'g', 7), QString::number(nmdv), QString::number(nsvr), country.code(),
            stat, QString::number(type), QString::number(ncls), QString::number(usage), ui->sbLat->text(),
            ui->sbLon->text(), QString::number(nalt), QString::number(npow), QString::number(nrgn)};
}

// Unlike the feed's, this marker is named by the navaid's name, and a VOR too comes with its usage.
QString CDialogNav::markerScript(int usage, bool isNdb) const
{
    const QString iden = ui->leIden->text();
    const QString name = ui->leName->text();
    const double frequency = ui->sbFreq->value();
    const mapscript::Place place = mapscript::storedPlace(lat, lon);
    const QString key = ui->leUkey->text();
    return isNdb
               ? mapscript::addNdbMarker2({place, name, key, usage, markertext::ndb(iden, name, frequency, lat, lon)})
               : mapscript::addVorMarker2({place, name, key, usage, markertext::vor(iden, name, frequency, lat, lon)});
}

void CDialogNav::on_pbOK_clicked()
{
    const TypeChoice type = checkedType(*ui);
    const UsageChoice* usageChoice = checkedChoice(*ui, usages);
    const int usage = usageChoice != nullptr ? usageChoice->stored : 0;
    if (!frequencyIsInBand(type.isNdb)) {
        return;
    }
    lat = position.latSec();
    lon = position.lonSec();
    const QString name = ui->leName->text();
    const SavedRow row{settings->dbGEN,
                       QStringLiteral("GEN"),
                       QStringLiteral("NAV"),
                       rowValues(type.written, usage),
                       name,
                       tr("Nouveau NAVAID"),
                       tr("Nouveau NAVAID: export"),
                       tr("%1 a été modifié/ajouté à la base GEN.db").arg(name)};
    if (ui->cbUpdateDB->isChecked()) {
        storeRow(row, this);
    }
    if (ui->cbSaveCSV->isChecked()) {
        exportRow(row, this);
    }
    script = type.written != 0 ? markerScript(usage, type.isNdb) : QString();
    setResult(Accepted);
    hide();
}

void CDialogNav::on_pbCancel_clicked()
{
    close();
}
