// Picking update files, and the form that takes objects out of an OpenStreetMap database.
#include "updateworld.h"

#include <QDir>
#include <QFileDialog>
#include <QtTest>

#include <cstdio>

#include <sys/stat.h>

namespace {

const QString dialogTitle = QStringLiteral("Ouvrir un fichier d'import");
const QString osmFile = QStringLiteral("OSM_FR.db");
const QString notOpenTitle = QStringLiteral("Ouverture de la base de données impossible.");
const QString movedText = QStringLiteral("Le fichier de la base OSM_FR.db a été remplacé ou effacé depuis son "
                                         "ouverture.\nRien n'est modifié : redémarrez Zephan Trajector.");
const QString idents = QStringLiteral("SELECT Ident FROM OSM_OBJ ORDER BY Ident");

/// A file that gives less than its size tells, as some of the system and of networks do: it never comes to its end.
/// Here it does in the end, for a reader that goes on asking.
class ShortFile : public QFile
{
public:
    using QFile::QFile;

    bool atEnd() const override
    {
        return ++asked > 1000;
    }

    mutable int asked = 0;
};

/// A database as the simulator's OpenStreetMap tool makes it, as far as an import touches it.
void makeOsmDatabase(const UpdateWorld& world, const QStringList& objects)
{
    world.sandbox.sql(osmFile, "CREATE TABLE OSM_OBJ (Ident TEXT, kind INTEGER)");
    for (const QString& ident : objects)
        world.sandbox.insertRow(osmFile, "OSM_OBJ", {{"Ident", ident}});
}

} // namespace

class TestImportFiles : public QObject
{
    Q_OBJECT

private slots:
    void noFilePickedEndsInSilence();
    void theDialogAsksForUpdateFiles();
    void severalFilesAreImportedInTheirOrder();
    void aFileAfterAStoppedOneIsStillTaken();
    void aFileThatCannotBeOpenedIsSkippedWithoutAWord();
    void whatIsNoFileIsSkippedWithoutAWord();
    void aNameWithABackslashIsTakenAsItIs();
    void osmRemovesNamedObjects();
    void osmInTheMiddleTakesOverTheRest();
    void osmReadsUtf8();
    void osmGoesOnAfterAFailure();
    void osmRunsNoNameThatGoesOnAsSql();
    void osmTakesAnEmptyLineForAnEmptyName();
    void osmEndsWhereAFileGivesNoMore();
    void osmWritesToTheLog();
    void osmAtTheEndOfTheFile();
    void osmWithADatabaseThatCannotBeOpened();
    void osmMakesNoDatabase_data();
    void osmMakesNoDatabase();
    void osmLeadsNotOutOfItsFolder();
    void osmTakesAFileBelowItsFolder();
    void osmWritesNoReplacedFile();
    void osmMakesNoDeletedFileAnew();
    void theOsmConnectionStaysForTheNextFile();
};

void TestImportFiles::noFilePickedEndsInSilence()
{
    UpdateWorld world;
    world.boxes.expectFilesRejected(dialogTitle);
    world.exchange.importFiles(world.variables.get());
    QCOMPARE(world.titles(), QStringList{dialogTitle});
}

void TestImportFiles::theDialogAsksForUpdateFiles()
{
    UpdateWorld world;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    world.boxes.expectDialog("QFileDialog", [&mode](QDialog* dialog) {
        mode = qobject_cast<QFileDialog*>(dialog)->fileMode();
        dialog->reject();
    });
    world.exchange.importFiles(world.variables.get());
    const SeenBox dialog = world.boxes.seen().value(0);
    QCOMPARE(dialog.title, dialogTitle);
    QCOMPARE(dialog.choices, (QStringList{"Fichier Zephan Export (*.CSV)", "Tous (*.*)"}));
    QCOMPARE(mode, QFileDialog::ExistingFiles);
}

void TestImportFiles::severalFilesAreImportedInTheirOrder()
{
    UpdateWorld world;
    const QString first = world.write("OBJ;FNM;+;1;first;s;1\n", "b.CSV");
    const QString second = world.write("OBJ;FNM;+;2;second;s;2\n", "a.CSV");
    world.boxes.expectFiles(dialogTitle, {first, second});
    world.expectImported(first);
    world.expectImported(second);
    world.exchange.importFiles(world.variables.get());
    QCOMPARE(world.column(dbfile::obj, "SELECT file FROM FNM ORDER BY rowid"), QString("first second"));
}

void TestImportFiles::aFileAfterAStoppedOneIsStillTaken()
{
    UpdateWorld world;
    const QString stopped = world.write("OBJ;FNM;+;1;first;s;1\nFNM\nOBJ;FNM;+;2;lost;s;2\n", "1.CSV");
    const QString next = world.write("OBJ;FNM;+;3;next;s;3\n", "2.CSV");
    world.boxes.expectFiles(dialogTitle, {stopped, next});
    world.boxes.expectMessage("Erreur SQL", "La base de données FNM est inconnue.\nFNM");
    world.expectImported(next);
    world.exchange.importFiles(world.variables.get());
    QCOMPARE(world.column(dbfile::obj, "SELECT file FROM FNM ORDER BY rowid"), QString("first next"));
}

void TestImportFiles::aFileThatCannotBeOpenedIsSkippedWithoutAWord()
{
    UpdateWorld world;
    const QString first = world.write("OBJ;FNM;+;1;first;s;1\n", "1.CSV");
    const QString gone = world.write("OBJ;FNM;+;2;gone;s;2\n", "2.CSV");
    const QString last = world.write("OBJ;FNM;+;3;last;s;3\n", "3.CSV");
    world.boxes.expectFiles(dialogTitle, {first, gone, last});
    // Picked while it was there, and gone before its turn.
    world.boxes.expectDialog("QMessageBox", [&gone](QDialog* dialog) {
        QFile::remove(gone);
        dialog->accept();
    });
    world.expectImported(last);
    world.exchange.importFiles(world.variables.get());
    QCOMPARE(world.titles(), (QStringList{dialogTitle, "Importation", "Importation"}));
    QCOMPARE(world.column(dbfile::obj, "SELECT file FROM FNM ORDER BY rowid"), QString("first last"));
}

void TestImportFiles::whatIsNoFileIsSkippedWithoutAWord()
{
    UpdateWorld world;
    const QString pipe = world.sandbox.path("pipe.CSV"); // nobody writes into it
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString device = world.sandbox.path("device.CSV");
    QVERIFY(QFile::link("/dev/zero", device)); // a line without an end
    const QString last = world.write("OBJ;FNM;+;3;last;s;3\n", "last.CSV");
    world.boxes.expectFiles(dialogTitle, {pipe, device, last});
    world.expectImported(last);
    world.exchange.importFiles(world.variables.get());
    QCOMPARE(world.titles(), (QStringList{dialogTitle, "Importation"}));
    QCOMPARE(world.column(dbfile::obj, "SELECT file FROM FNM"), QString("last"));
}

void TestImportFiles::aNameWithABackslashIsTakenAsItIs()
{
    if (QDir::separator() == '\\')
        QSKIP("no file has such a name here");
    UpdateWorld world;
    const QString picked = world.write("OBJ;FNM;+;1;picked;s;1\n", "back\\slash.CSV");
    world.boxes.expectFiles(dialogTitle, {picked});
    world.expectImported(picked);
    world.exchange.importFiles(world.variables.get());
    QCOMPARE(world.column(dbfile::obj, "SELECT file FROM FNM"), QString("picked"));
}

void TestImportFiles::osmRemovesNamedObjects()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "way/2", "way/3"});
    // The other fields of the first line are not read.
    QVERIFY(world.importToTheEnd("OSM;x;+;y\n OSM_FR.db \r\nway/1\r\n way/3\t\n"));
    QCOMPARE(world.column(osmFile, idents), QString("way/2"));
    QCOMPARE(world.variables->dbOSM, osmFile);
    QCOMPARE(QSqlDatabase::database(osmFile, false).databaseName(), world.sandbox.path("SQL/OSM_FR.db"));
}

void TestImportFiles::osmInTheMiddleTakesOverTheRest()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "OSM"});
    QVERIFY(world.importToTheEnd(navaidLine("A1") + "\nOSM\nOSM_FR.db\nway/1\n" + navaidLine("B1") + "\nOSM\n"));
    QCOMPARE(world.column(dbfile::gen, "SELECT ukey FROM NAV"), QString("A1"));
    QCOMPARE(world.column(osmFile, idents), QString());
}

void TestImportFiles::osmReadsUtf8()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"Château", "Mairie"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nCh\xc3\xa2teau\n"));
    QCOMPARE(world.column(osmFile, idents), QString("Mairie"));
}

void TestImportFiles::osmGoesOnAfterAFailure()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"l'église", "%1", "way/3"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nl'\xc3\xa9glise\n%1\n"));
    QCOMPARE(world.column(osmFile, idents), QString("l'église way/3"));
    QCOMPARE(world.logged(QtWarningMsg),
             QStringList{"CIODataBase::importDB Error \"DELETE FROM OSM_OBJ WHERE Ident = 'l'église';\""});
}

void TestImportFiles::osmRunsNoNameThatGoesOnAsSql()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"l'église", "way/1", "way/2"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nx' OR '1'='1\nl''\xc3\xa9glise\nway/2\n"));
    QCOMPARE(world.column(osmFile, idents), QString("way/1"));
    QCOMPARE(world.logged(QtWarningMsg),
             QStringList{"CIODataBase::importDB Error \"DELETE FROM OSM_OBJ WHERE Ident = 'x' OR '1'='1';\""});
}

void TestImportFiles::osmTakesAnEmptyLineForAnEmptyName()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"", "way/1", "way/2"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\n\nway/1\n"));
    QCOMPARE(world.column(osmFile, idents), QString("way/2"));
}

void TestImportFiles::osmEndsWhereAFileGivesNoMore()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "way/2"});
    ShortFile file(world.write("OSM\nOSM_FR.db\nway/1\n"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    world.expectImported(file.fileName());
    QVERIFY(world.exchange.importDB(file, world.variables.get()));
    QCOMPARE(world.column(osmFile, idents), QString("way/2"));
    QVERIFY2(file.asked < 10, qPrintable(QString::number(file.asked)));
}

void TestImportFiles::osmWritesToTheLog()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nway/1\nit's\n"));
    const QString folder = world.variables->dirOSM.path();
    QCOMPARE(world.logged(),
             (QStringList{"\"OSM_FR.db\" \"" + world.sandbox.path("update.CSV") + '"',
                          "is open \"OSM_FR.db\" \"" + folder + '"', "\"DELETE FROM OSM_OBJ WHERE Ident = 'way/1';\"",
                          "CIODataBase::importDB Error \"DELETE FROM OSM_OBJ WHERE Ident = 'it's';\"",
                          "\"DELETE FROM OSM_OBJ WHERE Ident = 'it's';\""}));
}

void TestImportFiles::osmAtTheEndOfTheFile()
{
    UpdateWorld world;
    // There is no name in the file: the folder itself is no database.
    world.boxes.expectMessage("Ouverture de la base de données impossible.",
                              "Impossible d\"établir la connexion avec .");
    QVERIFY(world.importToTheEnd(navaidLine("A1") + "\nOSM"));
    QCOMPARE(world.variables->dbOSM, QString());
    QCOMPARE(world.column(dbfile::gen, "SELECT ukey FROM NAV"), QString("A1"));
}

void TestImportFiles::osmWithADatabaseThatCannotBeOpened()
{
    UpdateWorld world;
    world.boxes.expectMessage("Ouverture de la base de données impossible.",
                              "Impossible d\"établir la connexion avec nowhere/OSM.db.");
    QVERIFY(world.importToTheEnd("OSM\nnowhere/OSM.db\nway/1\nway/2\n"));
    QCOMPARE(world.log.startingWith("CIODataBase::importDB Error").size(), 2);
}

void TestImportFiles::osmMakesNoDatabase_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as the simulator's databases are called") << "OBJZ.db";
    QTest::newRow("outside the folder") << "../brandnew.txt";
}

void TestImportFiles::osmMakesNoDatabase()
{
    QFETCH(QString, name);
    UpdateWorld world;
    const QByteArray lines = "OSM\n" + name.toUtf8() + "\nway/1\n";
    for (int i = 0; i < 2; ++i) { // the second time as the first: nothing of it stays registered
        world.boxes.expectMessage(notOpenTitle, "Impossible d\"établir la connexion avec " + name + '.');
        QVERIFY(world.importToTheEnd(lines));
        QVERIFY(world.boxes.allUsed());
    }
    QVERIFY(!QFileInfo::exists(world.variables->dirOSM.path() + '/' + name));
    QCOMPARE(world.log.startingWith("CIODataBase::importDB Error").size(), 2);
    QCOMPARE(world.log.startingWith("Database not found \"" + name + '"').size(), 2);
}

void TestImportFiles::osmLeadsNotOutOfItsFolder()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1"});
    world.variables->dirOSM.setPath(world.sandbox.path("Flightplan"));
    QVERIFY(QDir().mkpath(world.sandbox.path("Flightplan")));
    world.boxes.expectMessage(notOpenTitle, "Impossible d\"établir la connexion avec ../SQL/OSM_FR.db.");
    QVERIFY(world.importToTheEnd("OSM\n../SQL/OSM_FR.db\nway/1\n"));
    QCOMPARE(world.column(osmFile, idents), QString("way/1"));
}

void TestImportFiles::osmTakesAFileBelowItsFolder()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "way/2"});
    world.variables->dirOSM.setPath(world.sandbox.root());
    QVERIFY(world.importToTheEnd("OSM\nSQL/OSM_FR.db\nway/1\n"));
    QCOMPARE(world.column(osmFile, idents), QString("way/2"));
}

void TestImportFiles::osmWritesNoReplacedFile()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "way/2"});
    const QString path = world.sandbox.path("SQL/OSM_FR.db");
    QVERIFY(QFile::copy(path, path + ".new"));
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nway/1\n"));
    QCOMPARE(rename(QFile::encodeName(path + ".new").constData(), QFile::encodeName(path).constData()), 0);
    const QByteArray fresh = world.sandbox.readFile("SQL/OSM_FR.db");
    world.boxes.expectMessage("Base de données déplacée", movedText);
    QVERIFY(!world.import(world.write("OSM\nOSM_FR.db\nway/2\n")));
    QVERIFY(world.boxes.allUsed());
    QCOMPARE(world.sandbox.readFile("SQL/OSM_FR.db"), fresh);
    QCOMPARE(world.log.startingWith("\"DELETE FROM OSM_OBJ").size(), 1);
}

void TestImportFiles::osmMakesNoDeletedFileAnew()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "way/2"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nway/1\n"));
    world.sandbox.removeFile("SQL/OSM_FR.db");
    world.boxes.expectMessage("Base de données déplacée", movedText);
    QVERIFY(!world.import(world.write("OSM\nOSM_FR.db\nway/2\n")));
    QVERIFY(!world.sandbox.hasFile("SQL/OSM_FR.db"));
}

void TestImportFiles::theOsmConnectionStaysForTheNextFile()
{
    UpdateWorld world;
    makeOsmDatabase(world, {"way/1", "way/2"});
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nway/1\n"));
    QVERIFY(QSqlDatabase::database(osmFile, false).isOpen());
    QVERIFY(world.importToTheEnd("OSM\nOSM_FR.db\nway/2\n"));
    QCOMPARE(world.column(osmFile, idents), QString());
    QCOMPARE(world.log.startingWith("is open \"OSM_FR.db\"").size(), 1);
}

QTEST_MAIN(TestImportFiles)
#include "tst_importfiles.moc"
