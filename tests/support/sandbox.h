#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <QVariantMap>
#include <QVector>

/// Column codes with their values; a column that is not named takes the default of the function that inserts the row.
using Row = QVariantMap;

/// File names of the databases, which are the names of the program's connections.
namespace dbfile {
const QString gen = QStringLiteral("GEN.db");
const QString m3d = QStringLiteral("M3D.db");
const QString obj = QStringLiteral("OBJ.db");
const QString txy = QStringLiteral("TXY.db");
const QString wpt = QStringLiteral("WPT.db");
const QString route = QStringLiteral("ROUTE.db");
} // namespace dbfile

/// A simulator root in a temporary folder, with six empty databases of the right version in "SQL" below the root, and
/// "Tools/Trajector" as the current directory, where a settings file names the existing work folder "Work".
///
/// Make it before the window, let it die after the window: its end destroys the global state, removes every database
/// connection and restores the current directory, so that one process can hold one sandbox after the other.
class Sandbox
{
public:
    enum class Databases
    {
        Made,
        None
    };

    explicit Sandbox(Databases databases = Databases::Made);
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    /// Absolute path of the simulator's root.
    QString root() const;
    /// Absolute path of a file or folder told from the root, such as "Flightplan/LFPO_LFBO.FPL".
    QString path(const QString& relative) const;

    /// Writes a file told from the root, making its folders. A failure ends the test program.
    void writeFile(const QString& relative, const QByteArray& bytes) const;
    /// The bytes of a file told from the root; empty when there is none.
    QByteArray readFile(const QString& relative) const;
    bool hasFile(const QString& relative) const;
    /// Names of the files in a folder told from the root, in name order.
    QStringList filesIn(const QString& relative) const;
    void removeFile(const QString& relative) const;

    /// Writes one key of "trajector.ini", to be read by the next start.
    void setSetting(const QString& key, const QVariant& value) const;
    /// Reads one key of "trajector.ini"; invalid when it has no line there.
    QVariant setting(const QString& key) const;
    /// Empties "trajector.ini", as at the first start of all; the start then asks for the work folder.
    void removeSettings() const;

    /// Makes an empty database file (name as in `dbfile`) out of the data dictionary.
    void createDatabase(const QString& file, int userVersion) const;

    /// Runs one statement on a database: through the program's connection once it is open, else on the file. Returns
    /// the rows of the result. A statement that fails ends the test program with its text.
    QVector<QVariantList> sql(const QString& file, const QString& statement, const QVariantList& values = {}) const;
    /// The first value of the first row of the result; invalid without a row.
    QVariant sqlValue(const QString& file, const QString& statement, const QVariantList& values = {}) const;

    /// Inserts one row; columns that are not named are NULL.
    void insertRow(const QString& file, const QString& table, const Row& row) const;

    /// Airport: LFPO, "PARIS ORLY", FR, 48 43' 31" N, 002 21' 34" E, 291 feet; `iden` follows `ukey` unless given.
    void addAirport(const Row& row = {}) const;
    /// Runway of LFPO: length 7874, ends "24" (high) and "06" (low) on the airport's two sides.
    void addRunway(const Row& row = {}) const;
    /// Navaid: key "RBT", ident "RBT", "RAMBOUILLET", 114.7, FR, type 6 (VOR), usage 1, 48 39' N, 001 59' E.
    void addNavaid(const Row& row = {}) const;
    /// Waypoint: key "BAMES", name "BAMES", FR, location 78 ('N'), usage 1, 48 42' N, 003 00' E; `iden` and `name`
    /// follow `ukey` unless given.
    void addWaypoint(const Row& row = {}) const;
    /// Procedure leg: airport LFPO, "BAMES1A", number 0, type 0, point "BAMES" at its place.
    void addProcedureLeg(const Row& row = {}) const;
    /// Airway segment: "UT158", level 72 ('H'), from BAMES to RBT.
    void addAirway(const Row& row = {}) const;
    void addCountry(const QString& code, const QString& name) const;

private:
    QTemporaryDir folder;
    QString previousDirectory;
};

/// Arc seconds of degrees, minutes and seconds, as the databases hold them; a negative degree makes all negative.
double arcSeconds(int degrees, int minutes = 0, double seconds = 0.0);
