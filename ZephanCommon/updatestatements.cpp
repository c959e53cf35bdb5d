// The statements of the update files, one a table. Texts, last fields and decoded fields are what the simulator's tools
// agree on; what looks uneven among them is part of that.

#include "updatestatements.h"

#include <algorithm>

namespace {

QLatin1String latin1(const char* text)
{
    return QLatin1String(text);
}

// clang-format off
const std::array<UpdateStatement, 19> statements = {{
    {latin1("GEN"), latin1("APT"),
     latin1(
            "REPLACE INTO APT ( tile, ukey, afaa, iden, name, ctry, stat, acty, atyp, alat, alon, aele, aown,"
            " ause, argn, antm, afss, amag, aalt, afsa, antd, aata, aseg, alnd, amcj, amln, acus, afue, afrm,"
            " aeng, abto, ablo, alen, acft, aaco, aaga, aamo, aatf, aats, aate, altf, alts, alte, atpe, aicn,"
            " anrw, alrw, avor, aatc, ails)VALUES (:tile,:ukey,:afaa,:iden,:name,:ctry,:stat,:acty,:atyp,:alat,"
            ":alon,:aele,:aown,:ause,:argn,:antm,:afss,:amag,:aalt,:afsa,:antd,:aata,:aseg,:alnd,:amcj,:amln,"
            ":acus,:afue,:afrm,:aeng,:abto,:ablo,:alen,:acft,:aaco,:aaga,:aamo,:aatf,:aats,:aate,:altf,:alts,"
            ":alte,:atpe,:aicn,:anrw,:alrw,:avor,:aatc,:ails)"),
     50, 52, 52, {}},
    {latin1("GEN"), latin1("COM"),
     latin1(
            "REPLACE INTO COM ( tile, ckey, capt, cnam, ctyp, frq1, frq2, frq3, frq4, frq5, clat,"
            " clon)VALUES (:tile,:ckey,:capt,:cnam,:ctyp,:frq1,:frq2,:frq3,:frq4,:frq5,:clat,:clon)"),
     12, 14, 14, {}},
    {latin1("GEN"), latin1("RWY"),
     latin1(
            "REPLACE INTO RWY ( nseq, rapt, rlen, rwid, rsfc, rcon, rpav, rpcn, rsub, rpsi, rpat, rcls, rpcl,"
            " rhid, rhla, rhlo, rhht, rhhd, rhmh, rhdt, rhte, rhel, rhal, rhcl, rhtl, rhth, rhli, rhsl, rhmk,"
            " rhvr, rhvv, rhgt, rhgc, rhgl, rhl1, rhl2, rhl3, rhl4, rhl5, rhl6, rhl7, rhl8, rlid, rlla, rllo,"
            " rlht, rlhd, rlmh, rldt, rlte, rlel, rlal, rlcl, rltl, rlth, rlli, rlsl, rlmk, rlvr, rlvv, rlgt,"
            " rlgc, rlgl, rll1, rll2, rll3, rll4, rll5, rll6, rll7, rll8)VALUES (:nseq,:rapt,:rlen,:rwid,:rsfc,"
            ":rcon,:rpav,:rpcn,:rsub,:rpsi,:rpat,:rcls,:rpcl,:rhid,:rhla,:rhlo,:rhht,:rhhd,:rhmh,:rhdt,:rhte,"
            ":rhel,:rhal,:rhcl,:rhtl,:rhth,:rhli,:rhsl,:rhmk,:rhvr,:rhvv,:rhgt,:rhgc,:rhgl,:rhl1,:rhl2,:rhl3,"
            ":rhl4,:rhl5,:rhl6,:rhl7,:rhl8,:rlid,:rlla,:rllo,:rlht,:rlhd,:rlmh,:rldt,:rlte,:rlel,:rlal,:rlcl,"
            ":rltl,:rlth,:rlli,:rlsl,:rlmk,:rlvr,:rlvv,:rlgt,:rlgc,:rlgl,:rll1,:rll2,:rll3,:rll4,:rll5,:rll6,"
            ":rll7,:rll8)"),
     71, 73, 73, {}},
    {latin1("GEN"), latin1("ILS"),
     latin1(
            "REPLACE INTO ILS ( tile, ikey, iapt, irwy, iils, name, ntyp, ilat, ilon, ialt, freq, gsan, mdev,"
            " rang)VALUES (:tile,:ikey,:iapt,:irwy,:iils,:name,:ntyp,:ilat,:ilon,:ialt,:freq,:gsan,:mdev,:rang)"),
     14, 16, 16, {}},
    {latin1("GEN"), latin1("NAV"),
     latin1(
            "REPLACE INTO NAV ( tile, ukey, iden, name, nfrq, nmdv, nsvr, ctry, stat, ntyp, ncls, nuse, nlat,"
            " nlon, nalt, npow, nrgn)VALUES (:tile,:ukey,:iden,:name,:nfrq,:nmdv,:nsvr,:ctry,:stat,:ntyp,:ncls,"
            ":nuse,:nlat,:nlon,:nalt,:npow,:nrgn)"),
     17, 19, 19, {}},
    {latin1("WPT"), latin1("WPT"),
     latin1(
            "REPLACE INTO WPT ( tile, iden, ukey, name, ctry, stat, wloc, wtyp, wuse, wlat, wlon, walt, wmag,"
            " wbrg, wdis, wnav)VALUES (:tile,:iden,:ukey,:name,:ctry,:stat,:wloc,:wtyp,:wuse,:wlat,:wlon,:walt,"
            ":wmag,:wbrg,:wdis,:wnav)"),
     16, 18, 18, {}},
    // No tile among the columns, but one value for it in the line: the driver refuses the row.
    {latin1("RTE"), latin1("ATSROUTE"),
     latin1(
            "REPLACE INTO ATSROUTE ( aKey, aaid, seqn, typs, bidr, fqcl, levl, stat, nvk1, nvt1, nvi1, nvc1,"
            " nvk2, nvt2, nvi2, nvc2, dist, inbd, otbd, mina, maxa, lat1, lon1, lat2, lon2)VALUES (:aKey,:aaid,"
            ":seqn,:typs,:bidr,:fqcl,:levl,:stat,:nvk1,:nvt1,:nvi1,:nvc1,:nvk2,:nvt2,:nvi2,:nvc2,:dist,:inbd,"
            ":otbd,:mina,:maxa,:lat1,:lon1,:lat2,:lon2)"),
     25, 28, 28, {}},
    // No swid among the columns, but one value for it in the line: the driver refuses the row.
    {latin1("RTE"), latin1("SIDSTAR"),
     latin1(
            "REPLACE INTO SIDSTAR ( tile, skey, sapt, strm, sqnm, styp, swpt, salt, slat, slon)VALUES (:tile,"
            ":skey,:sapt,:strm,:sqnm,:styp,:swpt,:salt,:slat,:slon)"),
     10, 13, 13, {}},
    {latin1("RTE"), latin1("BDRY"),
     latin1(
            "REPLACE INTO BDRY ( tile, bkey, bseg, bnam, btyp, bica, bshp, bdrv, blt1, bln1, blt2, bln2, blt0,"
            " bln0, brd1, brd2, bbg1, bbg2, bnvi, bnvt, bnvc)VALUES (:tile,:bkey,:bseg,:bnam,:btyp,:bica,:bshp,"
            ":bdrv,:blt1,:bln1,:blt2,:bln2,:blt0,:bln0,:brd1,:brd2,:bbg1,:bbg2,:bnvi,:bnvt,:bnvc)"),
     21, 23, 23, {}},
    {latin1("M3D"), latin1("MOD"),
     latin1(
            "REPLACE INTO MOD ( name, Type, tsp, ntex, ftop, fbot, lod, nvtx, nind, vtab, ntab, ttab,"
            " xtab)VALUES (:name,:Type,:tsp,:ntex,:ftop,:fbot,:lod,:nvtx,:nind,:vtab,:ntab,:ttab,:xtab)"),
     13, 15, 12, {{12, false}, {13, true}, {14, true}, {15, true}}},
    {latin1("M3D"), latin1("SCN"),
     latin1(
            "REPLACE INTO SCN ( key, Type, sType)VALUES (:key,:Type,:sType);"),
     3, 5, 5, {}},
    {latin1("M3D"), latin1("TEXTURE"),
     latin1(
            "REPLACE INTO TEXTURE ( xname, wd, ht, tex)VALUES (:xname,:wd,:ht,:tex);"),
     4, 6, 6, {{6, false}}},
    {latin1("OBJ"), latin1("FNM"),
     latin1(
            "REPLACE INTO FNM ( key, file, scene, scnno)VALUES (:key,:file,:scene,:scnno)"),
     4, 6, 6, {}},
    {latin1("OBJ"), latin1("OBJ"),
     latin1(
            "REPLACE INTO OBJ ( qgt, type, xk, yk, kind, flag, mday, nday, lon, lat, xori, yori, zori, fobj,"
            " nozb, nozu, pm1, pm2, name, desc, scn)VALUES (:qgt,:type,:xk,:yk,:kind,:flag,:mday,:nday,:lon,:lat,"
            ":xori,:yori,:zori,:fobj,:nozb,:nozu,:pm1,:pm2,:name,:desc,:scn)"),
     21, 23, 23, {}},
    {latin1("OBJ"), latin1("Light"),
     latin1(
            "REPLACE INTO Light ( xk, yk, mod, mode, color, texture, radius, freq, ontime, dx, dy,"
            " dz)VALUES (:xk,:yk,:mod,:mode,:color,:texture,:radius,:freq,:ontime,:dx,:dy,:dz)"),
     12, 14, 14, {}},
    // Of the four tables only the last is decoded.
    {latin1("TXY"), latin1("Arcs"),
     latin1(
            "REPLACE INTO Arcs ( aKey, dim1, tkoEdge, dim2, tkoPath, dim3, lndEdge, dim4, lndPath)VALUES (:aKey,"
            ":dim1,:tkoEdge,:dim2,:tkoPath,:dim3,:lndEdge,:dim4,:lndPath)"),
     9, 11, 11, {{11, false}}},
    // The table of spots stays the text that the file holds.
    {latin1("TXY"), latin1("Light"),
     latin1(
            "REPLACE INTO Light ( aKey, Type, Txtr, sCol, sPm1, sPm2, Nbs, vTab)VALUES (:aKey,:Type,:Txtr,:sCol,"
            ":sPm1,:sPm2,:Nbs,:vTab)"),
     8, 10, 10, {}},
    {latin1("TXY"), latin1("Node"),
     latin1(
            "REPLACE INTO Node ( aKey, Ident, Lat, Lon, Alt, rwid, type, Sector, rfu)VALUES (:aKey,:Ident,:Lat,"
            ":Lon,:Alt,:rwid,:type,:Sector,:rfu)"),
     9, 11, 11, {{11, false}}},
    {latin1("TXY"), latin1("Pave"),
     latin1(
            "REPLACE INTO Pave ( aKey, Type, aUse, Nbvt, vTab)VALUES (:aKey,:Type,:aUse,:Nbvt,:vTab)"),
     5, 7, 7, {{7, false}}},
}};
// clang-format on

} // namespace

const std::array<UpdateStatement, 19>& updateStatements()
{
    return statements;
}

const UpdateStatement* findUpdateStatement(const QString& database, const QString& table)
{
    const auto found = std::find_if(statements.begin(), statements.end(), [&](const UpdateStatement& statement) {
        return database == statement.database && table == statement.table;
    });
    return found == statements.end() ? nullptr : &*found;
}
