// The aircraft archives: texts as the simulator writes them, and binary entries that nobody here reads.

#include "demoaircraft.h"

#include "inventednames.h"
#include "podwriter.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr std::uint64_t aircraftSeeds = 0x4000000000ULL;

struct Aircraft
{
    const char* archive; ///< path below the aircraft folder
    const char* name;    ///< of the texts in the resources and, in capitals, of the entries
    bool hasSvh;         ///< false: an archive that tells no numbers
};

/// One lies in a sub-folder, one has its suffix in capitals, one tells no numbers: all three exist in the wild.
const Aircraft ownAircraft[] = {
    {"cessna172.pod", "cessna172", true},   {"dr400.pod", "dr400", true},         {"TB20.POD", "tb20", true},
    {"Airliners/atr72.pod", "atr72", true}, {"Airliners/a320.pod", "a320", true}, {"ballon.pod", "ballon", false},
};

QByteArray resource(const QString& name)
{
    QFile file(QStringLiteral(":/demo/aircraft/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Bytes as a picture would have them: all values, zero bytes among them.
QByteArray pictureBytes(std::uint64_t seed, int size)
{
    Dice dice(seed);
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = char(dice.roll(256));
    return bytes;
}

QVector<PodContent> contents(const QString& name, const QByteArray& nfo, const QByteArray& svh, std::uint64_t seed)
{
    const QByteArray upper = name.toUpper().toLatin1();
    QVector<PodContent> entries{{"ART\\" + upper + ".RAW", pictureBytes(seed, 4096)},
                                {"WORLD\\" + upper + ".NFO", nfo}};
    if (!svh.isEmpty())
        entries << PodContent{"WORLD\\" + upper + ".SVH", svh};
    return entries << PodContent{"SOUND\\" + upper + ".WAV", pictureBytes(seed + 1, 2048)};
}

QByteArray inventedNfo(const QString& make)
{
    return QStringLiteral("<bgno> ========== BEGIN OBJECT ==========\n\t<make> ---- make and model ----\n\t%1\n"
                          "<endo> ========== END OBJECT ============\n")
        .arg(make)
        .toLatin1();
}

QByteArray inventedSvh(int number, Dice& dice)
{
    const int cruise = 90 + dice.roll(380);
    return QStringLiteral("<acid> ---- registration ----\nF-X%1\n<048a> ---- maximum cruise speed (knots) ----\n%2\n"
                          "<043a> ---- cruise speed (knots) ----\n%3\n<045a> ---- climb (feet a minute) ----\n%4\n"
                          "<044a> ---- approach speed (knots) ----\n%5\n<CEIL> ---- ceiling (feet) ----\n%6\n")
        .arg(inventedCode(number, 3), QString::number(cruise + 15), QString::number(cruise),
             QString::number(500 + dice.roll(25) * 100), QString::number(cruise * 6 / 10),
             QString::number(9000 + dice.roll(30) * 1000))
        .toLatin1();
}

bool writeOwn(const QDir& folder, const Aircraft& aircraft)
{
    const QString path = folder.filePath(QLatin1String(aircraft.archive));
    const QString name = QLatin1String(aircraft.name);
    const QByteArray nfo = resource(name + QStringLiteral(".nfo"));
    const QByteArray svh = aircraft.hasSvh ? resource(name + QStringLiteral(".svh")) : QByteArray();
    return folder.mkpath(QFileInfo(path).path()) && !nfo.isEmpty() && svh.isEmpty() != aircraft.hasSvh &&
           writePod(path, contents(name, nfo, svh, aircraftSeeds));
}

bool writeInvented(const QDir& folder, int number)
{
    Dice dice(aircraftSeeds + 2 * std::uint64_t(number));
    const QString name = QStringLiteral("inv%1").arg(inventedCode(number, 4));
    const QString make = inventedTown(dice) + QLatin1Char(' ') + QString::number(100 + dice.roll(900));
    return writePod(folder.filePath(name + QStringLiteral(".pod")),
                    contents(name, inventedNfo(make), inventedSvh(number, dice), std::uint64_t(dice.roll(1 << 20))));
}

} // namespace

QString writeDemoAircraft(const QDir& folder, int count)
{
    Q_INIT_RESOURCE(demo);
    int written = 0;
    for (const Aircraft& aircraft : ownAircraft) {
        if (!writeOwn(folder, aircraft))
            return QStringLiteral("cannot write %1").arg(QLatin1String(aircraft.archive));
        ++written;
    }
    for (; written < count; ++written)
        if (!writeInvented(folder, written))
            return QStringLiteral("cannot write into %1").arg(folder.path());
    return {};
}
