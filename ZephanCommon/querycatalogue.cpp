// The catalogue of lookups and deletions: the steps of all lookups are one table, walked by one loop.

#include "sqlmgr.h"

#include "keyedstatement.h"

#include "boxtext.h"

#include <QMessageBox>
#include <QSqlError>

namespace {

enum class Lookup
{
    APT,
    NAV,
    WPT,
    ILS,
    COM,
    RWY,
    Arcs,
    Node,
    Pave,
    Light,
    MOD,
    TEXTURE,
    OBJmday,
    OBJscn,
    FNM,
    ATSROUTE,
    SIDSTAR,
    BDRY,
};

/// One column that a lookup tries. The key replaces %1 and is not escaped; the other percent signs are SQL's.
struct LookupStep
{
    Lookup lookup;
    const char* equalForm;
    const char* likeForm;
};

// The steps of a lookup stand in the order in which they are tried.
constexpr LookupStep lookupSteps[] = {
    {Lookup::APT, R"(SELECT * FROM APT WHERE ukey = "%1")", R"(SELECT * FROM APT WHERE ukey LIKE "%1%")"},
    {Lookup::APT, R"(SELECT * FROM APT WHERE iden = "%1")", R"(SELECT * FROM APT WHERE iden LIKE "%1%")"},
    {Lookup::APT, R"(SELECT * FROM APT WHERE name = "%1")", R"(SELECT * FROM APT WHERE name LIKE "%%1%")"},
    {Lookup::NAV, R"(SELECT * FROM NAV WHERE ukey = "%1")", R"(SELECT * FROM NAV WHERE ukey LIKE "%1%")"},
    {Lookup::NAV, R"(SELECT * FROM NAV WHERE iden = "%1")", R"(SELECT * FROM NAV WHERE iden LIKE "%1%")"},
    {Lookup::NAV, R"(SELECT * FROM NAV WHERE name = "%1")", R"(SELECT * FROM NAV WHERE name LIKE "%%1%")"},
    {Lookup::WPT, R"(SELECT * FROM WPT WHERE ukey = "%1")", R"(SELECT * FROM WPT WHERE ukey LIKE "%1%")"},
    {Lookup::WPT, R"(SELECT * FROM WPT WHERE iden = "%1")", R"(SELECT * FROM WPT WHERE iden LIKE "%1%")"},
    {Lookup::WPT, R"(SELECT * FROM WPT WHERE name = "%1")", R"(SELECT * FROM WPT WHERE name LIKE "%%1%")"},
    {Lookup::ILS, R"(SELECT * FROM ILS WHERE iapt = "%1")", R"(SELECT * FROM ILS WHERE iapt LIKE "%1%")"},
    {Lookup::ILS, R"(SELECT * FROM ILS WHERE iils = "%1")", R"(SELECT * FROM ILS WHERE iils LIKE "%1%")"},
    {Lookup::ILS, R"(SELECT * FROM ILS WHERE name = "%1")", R"(SELECT * FROM ILS WHERE name LIKE "%%1%")"},
    {Lookup::ILS, R"(SELECT * FROM ILS WHERE ikey = "%1")", R"(SELECT * FROM ILS WHERE ikey LIKE "%%1%")"},
    {Lookup::COM, R"(SELECT * FROM COM WHERE capt = "%1")", R"(SELECT * FROM COM WHERE capt LIKE "%1%")"},
    {Lookup::COM, R"(SELECT * FROM COM WHERE cnam = "%1")", R"(SELECT * FROM COM WHERE cnam LIKE "%1%")"},
    // The backslash has always been there; the pattern finds nothing in practice.
    {Lookup::COM, R"(SELECT * FROM COM WHERE ckey = "%1")", R"(SELECT * FROM COM WHERE ckey LIKE "\%1%")"},
    {Lookup::RWY, R"(SELECT * FROM RWY WHERE rapt = "%1")", R"(SELECT * FROM RWY WHERE rapt LIKE "%1%")"},
    {Lookup::Arcs, R"(SELECT * FROM Arcs WHERE akey = "%1")", R"(SELECT * FROM Arcs WHERE akey LIKE "%1%")"},
    {Lookup::Node, R"(SELECT * FROM Node WHERE akey = "%1")", R"(SELECT * FROM Node WHERE akey LIKE "%1%")"},
    {Lookup::Pave, R"(SELECT * FROM PAVE WHERE akey = "%1")", R"(SELECT * FROM PAVE WHERE akey LIKE "%1%")"},
    {Lookup::Light, R"(SELECT * FROM LIGHT WHERE akey = "%1")", R"(SELECT * FROM LIGHT WHERE akey LIKE "%1%")"},
    {Lookup::MOD, R"(SELECT * FROM MOD WHERE name = "%1")", R"(SELECT * FROM MOD WHERE name LIKE "%1%")"},
    {Lookup::TEXTURE, R"(SELECT * FROM TEXTURE WHERE xname = "%1")", R"(SELECT * FROM TEXTURE WHERE xname LIKE "%1%")"},
    {Lookup::OBJmday, R"(SELECT * FROM OBJ WHERE mday = "%1")", R"(SELECT * FROM OBJ WHERE mday LIKE "%1%")"},
    {Lookup::OBJscn, R"(SELECT * FROM OBJ WHERE scn = "%1")", R"(SELECT * FROM OBJ WHERE scn LIKE "%1%")"},
    {Lookup::FNM, R"(SELECT * FROM FNM WHERE scene = "%1")", R"(SELECT * FROM FNM WHERE scene LIKE "%1%")"},
    {Lookup::ATSROUTE, R"(SELECT * FROM ATSROUTE WHERE aaid = "%1")",
     R"(SELECT * FROM ATSROUTE WHERE aaid LIKE "%1%")"},
    {Lookup::SIDSTAR, R"(SELECT * FROM SIDSTAR WHERE sapt = "%1")", R"(SELECT * FROM SIDSTAR WHERE sapt LIKE "%1%")"},
    {Lookup::SIDSTAR, R"(SELECT * FROM SIDSTAR WHERE strm = "%1")", R"(SELECT * FROM SIDSTAR WHERE strm LIKE "%1%")"},
    {Lookup::BDRY, R"(SELECT * FROM BDRY WHERE bkey = "%1")", R"(SELECT * FROM BDRY WHERE bkey LIKE "%1%")"},
    // A boundary lookup has always gone on in COM, a table that its own database does not have.
    {Lookup::BDRY, R"(SELECT * FROM COM WHERE cnam = "%1")", R"(SELECT * FROM COM WHERE cnam LIKE "%1%")"},
    {Lookup::BDRY, R"(SELECT * FROM COM WHERE ckey = "%1")", R"(SELECT * FROM COM WHERE ckey LIKE "%%1%")"},
};

bool runFor(const char* form, const QString& key, QSqlQuery& query)
{
    return runKeyed(query, QString(QLatin1String(form)).arg(key), staysQuoted(key, QLatin1Char('"')));
}

bool lookUp(Lookup lookup, const QString& key, bool exact, QSqlQuery& query)
{
    for (const LookupStep& step : lookupSteps) {
        if (step.lookup != lookup) {
            continue;
        }
        // A step that fails is reported and does not end the cascade.
        if (!runFor(exact ? step.equalForm : step.likeForm, key, query)) {
            SqlMgr::showQueryError(query);
        }
        if (query.next()) {
            return true;
        }
    }
    return false;
}

/// The column that a deletion compares with its key.
struct KeyColumn
{
    const char* table;
    const char* column;
};

void removeRows(const KeyColumn& place, const QString& key, QSqlQuery& query)
{
    const KeyedRows rows{QLatin1String(place.table), QLatin1String(place.column), key};
    const QString statement = QStringLiteral(R"(DELETE FROM %1 WHERE %2 = "%3")").arg(rows.table, rows.column, key);
    if (!runDeletion(query, statement, rows)) {
        SqlMgr::showQueryError(query);
    }
}

} // namespace

bool SqlMgr::selectAll(QSqlQuery& query, const QString& table)
{
    const bool done = query.exec(QStringLiteral("SELECT * from %1;").arg(table));
    if (!done) {
        showQueryError(query);
    }
    return done;
}

bool SqlMgr::getAPT(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::APT, key, exact, query);
}

bool SqlMgr::getNAV(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::NAV, key, exact, query);
}

bool SqlMgr::getWPT(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::WPT, key, exact, query);
}

bool SqlMgr::getILS(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::ILS, key, exact, query);
}

bool SqlMgr::getCOM(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::COM, key, exact, query);
}

bool SqlMgr::getRWY(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::RWY, key, exact, query);
}

bool SqlMgr::getArcs(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::Arcs, key, exact, query);
}

bool SqlMgr::getNode(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::Node, key, exact, query);
}

bool SqlMgr::getPave(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::Pave, key, exact, query);
}

bool SqlMgr::getLight(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::Light, key, exact, query);
}

bool SqlMgr::getMOD(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::MOD, key, exact, query);
}

bool SqlMgr::getTEXTURE(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::TEXTURE, key, exact, query);
}

bool SqlMgr::getOBJmday(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::OBJmday, key, exact, query);
}

bool SqlMgr::getOBJscn(int key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::OBJscn, QString::number(key), exact, query);
}

bool SqlMgr::getFNM(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::FNM, key, exact, query);
}

bool SqlMgr::getATSROUTE(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::ATSROUTE, key, exact, query);
}

bool SqlMgr::getSIDSTAR(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::SIDSTAR, key, exact, query);
}

bool SqlMgr::getBDRY(const QString& key, bool exact, QSqlQuery& query)
{
    return lookUp(Lookup::BDRY, key, exact, query);
}

void SqlMgr::delAPT(const QString& key, QSqlQuery& query)
{
    removeRows({"APT", "ukey"}, key, query);
}

void SqlMgr::delNAV(const QString& key, QSqlQuery& query)
{
    removeRows({"NAV", "ukey"}, key, query);
}

void SqlMgr::delWPT(const QString& key, QSqlQuery& query)
{
    removeRows({"WPT", "ukey"}, key, query);
}

void SqlMgr::delILS(const QString& key, QSqlQuery& query)
{
    removeRows({"ILS", "iapt"}, key, query);
}

void SqlMgr::delCOM(const QString& key, QSqlQuery& query)
{
    removeRows({"COM", "capt"}, key, query);
}

void SqlMgr::delRWY(const QString& key, QSqlQuery& query)
{
    removeRows({"RWY", "rapt"}, key, query);
}

void SqlMgr::delPave(const QString& key, QSqlQuery& query)
{
    removeRows({"PAVE", "akey"}, key, query);
}

void SqlMgr::delLight(const QString& key, QSqlQuery& query)
{
    removeRows({"LIGHT", "akey"}, key, query);
}

void SqlMgr::delMOD(const QString& key, QSqlQuery& query)
{
    removeRows({"MOD", "name"}, key, query);
}

void SqlMgr::delTEXTURE(const QString& key, QSqlQuery& query)
{
    removeRows({"TEXTURE", "xname"}, key, query);
}

void SqlMgr::delOBJmday(const QString& key, QSqlQuery& query)
{
    removeRows({"OBJ", "mday"}, key, query);
}

void SqlMgr::delOBJscn(const QString& key, QSqlQuery& query)
{
    removeRows({"OBJ", "scn"}, key, query);
}

void SqlMgr::delFNM(const QString& key, QSqlQuery& query)
{
    removeRows({"FNM", "scene"}, key, query);
}

void SqlMgr::delATSROUTE(const QString& key, QSqlQuery& query)
{
    removeRows({"ATSROUTE", "aaid"}, key, query);
}

void SqlMgr::delSIDSTARname(const QString& key, QSqlQuery& query)
{
    removeRows({"SIDSTAR", "strm"}, key, query);
}

void SqlMgr::delSIDSTARapt(const QString& key, QSqlQuery& query)
{
    removeRows({"SIDSTAR", "sapt"}, key, query);
}

void SqlMgr::delBDRY(const QString& key, QSqlQuery& query)
{
    removeRows({"BDRY", "bkey"}, key, query);
}

void SqlMgr::showQueryError(const QSqlQuery& query)
{
    // Only the title is translated; the text has no blank after its first sentence.
    QMessageBox::information(nullptr, tr("SQL Error"),
                             QStringLiteral("One of the query failed to execute.Error detail: %1 %2")
                                 .arg(boxText(query.lastQuery()), boxText(query.lastError().text())),
                             QMessageBox::Ok, QMessageBox::NoButton);
}
