// The record of the schema, and rows read by its numbers.
#include "databaselayout.h"
#include "datadictionary.h"

#include "sandbox.h"

#include <QSet>
#include <QtTest>

namespace {

struct Columns
{
    const ColumnDef* first = nullptr;
    int count = 0;
};

template <std::size_t size>
Columns table(const ColumnDef (&columns)[size])
{
    return {columns, int(size)};
}

} // namespace

Q_DECLARE_METATYPE(Columns)

class TestDataDictionary : public QObject
{
    Q_OBJECT

private slots:
    void versionText()
    {
        QCOMPARE(version, QString("0.22 novembre 2013"));
    }

    void listOfNames()
    {
        QStringList names;
        for (const QString& name : tableNames)
            names << name;
        QCOMPARE(names.join(' '), QString("APT COM RWY ILS NAV WPT Light Pave MOD TEX"));
    }

    void columns_data()
    {
        QTest::addColumn<Columns>("table");
        QTest::addColumn<QString>("codes");
        QTest::addColumn<QString>("types");
        QTest::addColumn<QString>("widths");
        QTest::newRow("APT") << table(fieldsAPT)
                             << "tile ukey afaa iden name ctry stat acty atyp alat alon aele aown ause argn antm afss "
                                "amag aalt afsa antd aata aseg alnd amcj amln acus afue afrm aeng abto ablo alen acft "
                                "aaco aaga aamo aatf aats aate altf alts alte atpe aicn anrw alrw avor aatc ails"
                             << "ICCCCCCCIDDIIICCCCIIIIIIIIIIIIIIIIIIIIIIIIIIIIIIII"
                             << "0 10 4 6 40 4 6 20 0 0 0 0 0 0 6 20 20 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 "
                                "0 0 0 0 0 0 0 0 0 0";
        QTest::newRow("RWY")
            << table(fieldsRWY)
            << "nseq rapt rlen rwid rsfc rcon rpav rpcn rsub rpsi rpat rcls rpcl rhid rhla rhlo rhht rhhd rhmh rhdt "
               "rhte rhel rhal rhcl rhtl rhth rhli rhsl rhmk rhvr rhvv rhgt rhgc rhgl rhl1 rhl2 rhl3 rhl4 rhl5 rhl6 "
               "rhl7 rhl8 rlid rlla rllo rlht rlhd rlmh rldt rlte rlel rlal rlcl rltl rlth rlli rlsl rlmk rlvr rlvv "
               "rlgt rlgc rlgl rll1 rll2 rll3 rll4 rll5 rll6 rll7 rll8"
            << "ICIIIIIIIIIIICDDIDDIICCCCCCCCCICCCCCCCCCCCCDDIDDIICCCCCCCCCICCCCCCCCCCC"
            << "0 10 0 0 0 0 0 0 0 0 0 0 0 4 0 0 0 0 0 0 0 1 1 1 1 1 1 1 1 1 0 1 1 1 1 1 1 1 1 1 1 1 4 0 0 0 0 0 0 0 1 "
               "1 1 1 1 1 1 1 1 0 1 1 1 1 1 1 1 1 1 1 1";
        QTest::newRow("NAV") << table(fieldsNAV)
                             << "tile ukey iden name nfrq nmdv nsvr ctry stat ntyp ncls nuse nlat nlon nalt npow nrgn"
                             << "ICCCFFFCCIIIFFIFF"
                             << "0 10 5 40 0 0 0 4 4 0 0 0 0 0 0 0 0";
        QTest::newRow("COM") << table(fieldsCOM) << "tile ckey capt cnam ctyp frq1 frq2 frq3 frq4 frq5 clat clon"
                             << "ICCCIDDDDDDD"
                             << "0 10 10 20 0 0 0 0 0 0 0 0";
        QTest::newRow("ILS") << table(fieldsILS)
                             << "tile ikey iapt irwy iils name ntyp ilat ilon ialt freq gsan mdev rang"
                             << "ICCCCCIDDIDDDD"
                             << "0 10 10 4 6 40 0 0 0 0 0 0 0 0";
        QTest::newRow("WPT") << table(fieldsWPT)
                             << "tile iden ukey name ctry stat wloc wtyp wuse wlat wlon walt wmag wbrg wdis wnav"
                             << "ICCCCCCIIDDIDDDC"
                             << "0 10 10 26 3 3 1 0 0 0 0 0 0 0 0 10";
        QTest::newRow("SIDSTAR") << table(fieldsSIDSTAR) << "tile skey sapt strm sqnm styp swid swpt salt slat slon"
                                 << "ICCCIICIFFF"
                                 << "10 10 5 40 0 0 0 4 4 0 0";
        QTest::newRow("BDRY") << table(fieldsBDRY)
                              << "tile bkey bseg bnam btyp bica bshp bdrv blt1 bln1 blt2 bln2 blt0 bln0 brd1 brd2 bbg1 "
                                 "bbg2 bnvi bnvt bnvc"
                              << "ICICICCCDDDDDDIIDDCIC"
                              << "0 7 0 38 0 4 1 1 0 0 0 0 0 0 0 0 0 0 4 0 2";
        QTest::newRow("ATSROUTE") << table(fieldsATSROUTE)
                                  << "tile akey aaid seqn typs bidr fqcl levl stat nvk1 nvt1 nvi1 nvc1 nvk2 nvt2 nvi2 "
                                     "nvc2 dist inbd otbd mina maxa lat1 lon1 lat2 lon2"
                                  << "ICCIIIIIICICCCICCDDDIIDDDD"
                                  << "0 11 7 0 0 0 0 0 0 11 0 6 3 11 0 6 3 0 0 0 0 0 0 0 0 0";
        QTest::newRow("CTY") << table(fieldsCTY) << "cuid cnam"
                             << "CC"
                             << "4 40";
        QTest::newRow("STATE") << table(fieldsSTATE) << "skey sctr nsta name"
                               << "CCCC"
                               << "5 3 4 40";
        QTest::newRow("Light") << table(fieldsLight) << "aKey Type Txtr sCol sPm1 sPm2 Nbs vTab"
                               << "CIIIIIIB"
                               << "10 0 0 0 0 0 0 0";
        QTest::newRow("MOD") << table(fieldsMOD) << "name Type tsp ntex ftop fbot lod nvtx nind vtab ntab ttab xtab"
                             << "CICCDDIIIBBBB"
                             << "256 0 1 256 0 0 0 0 0 0 0 0 0";
        QTest::newRow("TEXTURE") << table(fieldsTEXTURE) << "xname wd ht tex"
                                 << "CIIB"
                                 << "32 0 0 0";
        QTest::newRow("Pave") << table(fieldsPave) << "aKey Type aUse Nbvt vTab"
                              << "CIIIB"
                              << "10 0 0 0 0";
    }

    void columns()
    {
        QFETCH(Columns, table);
        QStringList codes;
        QString types;
        QStringList widths;
        for (int i = 0; i < table.count; ++i) {
            const ColumnDef& column = table.first[i];
            codes << column.code;
            types += QChar(column.type);
            widths << QString::number(column.width);
        }
        QTEST(codes.join(' '), "codes");
        QTEST(types, "types");
        QTEST(widths.join(' '), "widths");
    }

    void descriptions_data()
    {
        QTest::addColumn<Columns>("table");
        QTest::addColumn<QString>("texts");
        QTest::newRow("APT")
            << table(fieldsAPT)
            << "Tile key|Airport key|FAA|ICAO|Name|Country|State|County|Type|Latitude|Longitude|"
               "Elevation(feet)|Ownership|Usage|Operating region|NOTAM facility|FSS facility|"
               "Magnetic variation|Traffic altitude (feet MSL)|Flight Service available|NOTAM D available|"
               "Air Traffic Control available|Segmented circle available|Landing Fee charged|"
               "Military/Civil joint use|Military landing rights|Customs entry airport|Fuel types available|"
               "Frame services available|Engine services available|Bottled oxygen available|"
               "Bulk oxygen available|Beacon lens color|Based aircraft types|Annual commercial operations|"
               "Annual general aviation operations|Annual military operations|Airport attendance|"
               "Airport attendance start time|Airport attendance end time|Airport lighting|"
               "Airport lighting start time|Airport lighting end time|Airport Type|Airport Icon|"
               "Number of runways|Longuest runway in feet|VOR colocated on airport property|"
               "ATC service available|ILS approaches available";
        QTest::newRow("RWY")
            << table(fieldsRWY)
            << "Sequence number|Airport key|Runway length|Runway width|Surface type|Surface condition|"
               "Pavement|Pavement classification|Pavement subgrade|Pavement Tire PSI|"
               "Traffic Pattern direction|Closed unusable|Pilot controlled lighting|Hi End ID|Latitude|"
               "Longitude|Elevation|True heading|Magnetic heading|Displaced threshold|"
               "Threshold elevation (feet)|End lights|Alignment lights|Center lights|Touch down lights|"
               "Threhold lights|Edge lights|Flashing lights|Markings|RVR|RVV|Glide slope type|"
               "Glide slope config|Glide slope location|Ligth system 1|Light system 2|Light system 3|"
               "Light system 4|Light system 5|Light system 6|Light system 7|Light system 8|Hi End ID|"
               "Latitude|Longitude|Elevation|True heading|Magnetic heading|Displaced threshold|"
               "Threshold elevation (feet)|End lights|Alignment lights|Center lights|Touch down lights|"
               "Threhold lights|Edge lights|Flashing lights|Markings|RVR|RVV|Glide slope type|"
               "Glide slope config|Glide slope location|Ligth system 1|Light system 2|Light system 3|"
               "Light system 4|Light system 5|Light system 6|Light system 7|Light system 8";
        QTest::newRow("NAV")
            << table(fieldsNAV)
            << "Tile key|NAV key|NAV ident|NAV name|NAV frequency|Mag deviation|Slaved deviation|Country|"
               "State|Type|Classification|Usage|Latitude|Longitude|Altitude|Power|Range";
        QTest::newRow("COM") << table(fieldsCOM)
                             << "Tile key|COM key|Airport key|COM name|COM type|Frequency 1|Frequency 2|Frequency 3|"
                                "Frequency 4|Frequency 5|Latitude|Longitude";
        QTest::newRow("ILS")
            << table(fieldsILS)
            << "Tile key|ILS key|Airport key|Runway end|ILS identity|ILS name|ILS type|Latitude|Longitude|"
               "Altitude|Frequency|Glide angle|Mag deviation|Range";
        QTest::newRow("WPT") << table(fieldsWPT)
                             << "Tile key|WPT ident|WPT key|WPT name|Country|State|Associated VOR|Type|Usage|Latitude|"
                                "Longitude|Altitude|Mag deviation|Bearing to NAV|Distance to NAV|NAV key";
        QTest::newRow("SIDSTAR")
            << table(fieldsSIDSTAR)
            << "Tile key|SID STAR key|Airport Key|SID STAR Name|Sequence Number|SID or STAR|Waypoint ID|"
               "Waypoint Type|Altitude|Latitude|Longitude";
        QTest::newRow("BDRY")
            << table(fieldsBDRY)
            << "Tile key|Boundary Ident|Segment Number|Boundary Name|Type|ICAO Name|Shape|Derivation|"
               "Latitude 1|Longitude 1|Latitude 2|Longitude 2|Latitude 0|longitude 0|Radius 1|Radius 2|"
               "Bearing 1|Bearing 2|Navaid Ident|Navaid Type|Navaid Country";
        QTest::newRow("ATSROUTE")
            << table(fieldsATSROUTE)
            << "Tile key|ATS Route Key|ATS Route ID|Sequence Number|Type|Bidirectional|Frequency Class|"
               "Level|Status|Navaid Key 1|Navaid Type 1|Navaid Identifier 1|Navaid Country Code 1|"
               "Navaid Key 2|Navaid Type 2|Navaid Indentifier 2|Navaid Country Code 2|Distance|"
               "Inbound Course|Outbound Course|Minimum Altitude|Maximum Altitude|latitude Navaid 1|"
               "longitude Navaid 1|latitude Navaid 1|longitude Navaid 2";
        QTest::newRow("CTY") << table(fieldsCTY) << "Country ID|Country name";
        QTest::newRow("STATE") << table(fieldsSTATE) << "State key|Country code|State code|State name";
        QTest::newRow("Light")
            << table(fieldsLight)
            << "Airport key|Light type (omni, flash, etc)|Texture number|Light color|spot parameter 1|"
               "Spot parameter 2|spot count in blob table|Spot table";
        QTest::newRow("MOD")
            << table(fieldsMOD)
            << "Key: SMF or BIN file name|Category of model|Transparent indicator|Texture file|Top (feet)|"
               "Bottom (feet)|Level of Detail [0-3]|Number of vertices|Number of indices|Vertex table|"
               "Normal table|Texture table|Index table\t";
        QTest::newRow("TEXTURE") << table(fieldsTEXTURE) << "texture name|Width in pixels|height in pixel|RGBA array";
        QTest::newRow("Pave") << table(fieldsPave)
                              << "Airport key|Pavement type (pave,edge,etc)|Airport usage (taxiway,parking,etc)|"
                                 "Vertex count in blob table|Vertex table";
    }

    void descriptions()
    {
        QFETCH(Columns, table);
        QFETCH(QString, texts);
        QStringList found;
        for (int i = 0; i < table.count; ++i)
            found << table.first[i].description;
        QCOMPARE(found, texts.split('|'));
    }

    void numbersAreThePositionsButForOne()
    {
        for (const DatabaseLayout& database : databaseLayouts()) {
            for (const TableLayout& layout : database.tables) {
                for (int i = 0; i < layout.columnCount; ++i) {
                    const bool oddOne = layout.name == "MOD" && layout.columns[i].code == "lod";
                    QCOMPARE(layout.columns[i].number, oddOne ? 1 : i);
                }
            }
        }
        QCOMPARE(fieldsMOD[6].code, QString("lod"));
    }

    void slipsOfTheRecordStay_data()
    {
        QTest::addColumn<QString>("found");
        QTest::addColumn<QString>("expected");
        QTest::newRow("xtab ends in a tab") << fieldsMOD[12].description << "Index table\t";
        QTest::newRow("longest runway") << fieldsAPT[46].description << "Longuest runway in feet";
        QTest::newRow("threshold lights, high end") << fieldsRWY[25].description << "Threhold lights";
        QTest::newRow("threshold lights, low end") << fieldsRWY[54].description << "Threhold lights";
        QTest::newRow("light system 1, high end") << fieldsRWY[34].description << "Ligth system 1";
        QTest::newRow("light system 1, low end") << fieldsRWY[63].description << "Ligth system 1";
        QTest::newRow("low end repeats the high end") << fieldsRWY[42].description << "Hi End ID";
        QTest::newRow("navaid identifier 2") << fieldsATSROUTE[15].description << "Navaid Indentifier 2";
        QTest::newRow("lat2 names navaid 1") << fieldsATSROUTE[24].description << "latitude Navaid 1";
        QTest::newRow("small l") << fieldsBDRY[13].description << "longitude 0";
    }

    void slipsOfTheRecordStay()
    {
        QFETCH(QString, found);
        QTEST(found, "expected");
    }

    void keysOfTheUpdateLines()
    {
        QCOMPARE(fieldsNAV[1].code, QString("ukey"));
        QCOMPARE(fieldsWPT[2].code, QString("ukey"));
        QCOMPARE(fieldsSIDSTAR[3].code, QString("strm"));
        QCOMPARE(fieldsSIDSTAR[2].code, QString("sapt"));
    }

    void navaidRowByPosition()
    {
        Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "RBTFR"}, {"iden", "RBT"}, {"nlat", 175140.0}, {"nlon", 7140.0}});
        const QVariantList row = sandbox.sql(dbfile::gen, "SELECT * FROM NAV").first();
        QCOMPARE(row.size(), 17);
        QCOMPARE(row[1].toString(), QString("RBTFR"));
        QCOMPARE(row[2].toString(), QString("RBT"));
        QCOMPARE(row[3].toString(), QString("RAMBOUILLET"));
        QCOMPARE(row[4].toDouble(), 114.7);
        QCOMPARE(row[12].toDouble(), 175140.0);
        QCOMPARE(row[13].toDouble(), 7140.0);
    }

    void waypointRowHasIdentBeforeKey()
    {
        Sandbox sandbox;
        sandbox.addWaypoint({{"ukey", "BAMESFR"}, {"iden", "BAMES"}});
        const QVariantList row = sandbox.sql(dbfile::wpt, "SELECT * FROM WPT").first();
        QCOMPARE(row.size(), 16);
        QCOMPARE(row[1].toString(), QString("BAMES"));
        QCOMPARE(row[2].toString(), QString("BAMESFR"));
    }

    void runwayRowHasNoTile()
    {
        Sandbox sandbox;
        sandbox.addRunway({{"nseq", 7}});
        const QVariantList row = sandbox.sql(dbfile::gen, "SELECT * FROM RWY").first();
        QCOMPARE(row.size(), 71);
        QCOMPARE(row[0].toInt(), 7);
        QCOMPARE(row[1].toString(), QString("LFPO"));
        QCOMPARE(row[13].toString(), QString("24"));
        QCOMPARE(row[42].toString(), QString("06"));
    }

    void tablesOfTheDatabases_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("group");
        QTest::addColumn<int>("version");
        QTest::addColumn<QString>("tables");
        QTest::newRow("0") << "GEN"
                           << "GEN" << 0 << "APT 50, COM 12, RWY 71, ILS 14, NAV 17, CTY 2, STATE 4";
        QTest::newRow("1") << "M3D"
                           << "M3D" << 3 << "MOD 13, TEXTURE 4, SCN 3";
        QTest::newRow("2") << "OBJ"
                           << "OBJ" << 4 << "OBJ 21, FNM 4, Light 12";
        QTest::newRow("3") << "TXY"
                           << "TXY" << 1 << "Arcs 9, Node 9, Pave 5, Light 8";
        QTest::newRow("4") << "WPT"
                           << "WPT" << 0 << "WPT 16";
        QTest::newRow("5") << "ROUTE"
                           << "RTE" << 0 << "ATSROUTE 26, SIDSTAR 11, BDRY 21";
    }

    void tablesOfTheDatabases()
    {
        QCOMPARE(databaseLayouts().size(), std::size_t(6));
        const DatabaseLayout& layout = databaseLayouts()[std::size_t(atoi(QTest::currentDataTag()))];
        QStringList tables;
        for (const TableLayout& entry : layout.tables)
            tables << QString("%1 %2").arg(entry.name).arg(entry.columnCount);
        QTEST(layout.prefix, "prefix");
        QTEST(layout.group, "group");
        QTEST(layout.version, "version");
        QTEST(tables.join(", "), "tables");
    }

    void tablesWithoutADefinition_data()
    {
        QTest::addColumn<int>("database");
        QTest::addColumn<int>("table");
        QTest::addColumn<QString>("codes");
        QTest::newRow("SCN") << 1 << 2 << "key Type sType";
        QTest::newRow("OBJ") << 2 << 0
                             << "qgt type xk yk kind flag mday nday lon lat xori yori zori fobj nozb nozu pm1 pm2 name "
                                "desc scn";
        QTest::newRow("FNM") << 2 << 1 << "key file scene scnno";
        QTest::newRow("object lights") << 2 << 2 << "xk yk mod mode color texture radius freq ontime dx dy dz";
        QTest::newRow("Arcs") << 3 << 0 << "aKey dim1 tkoEdge dim2 tkoPath dim3 lndEdge dim4 lndPath";
        QTest::newRow("Node") << 3 << 1 << "aKey Ident Lat Lon Alt rwid type Sector rfu";
    }

    void tablesWithoutADefinition()
    {
        QFETCH(int, database);
        QFETCH(int, table);
        const TableLayout& layout = databaseLayouts()[std::size_t(database)].tables[std::size_t(table)];
        QStringList codes;
        for (int i = 0; i < layout.columnCount; ++i) {
            codes << layout.columns[i].code;
            QCOMPARE(layout.columns[i].type, columnTypeOpen);
        }
        QTEST(codes.join(' '), "codes");
    }
};

QTEST_GUILESS_MAIN(TestDataDictionary)
#include "tst_datadictionary.moc"
