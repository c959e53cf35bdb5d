// Reading 500 archives, as the start does for its list of aircraft, against a bare reading of their directories: open,
// header, the directory's bytes, close.
#include "aircraftarchives.h"
#include "caircraftdata.h"
#include "cpodmgr.h"
#include "measure.h"
#include "podwriter.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QtEndian>

namespace {

constexpr int archives = 500;
/// Entries besides the two that are looked for: few as in the demonstration's archives, and models, textures and sounds
/// by the dozen. An entry costs two allocations, its record and its name, which the bare reading spares itself.
constexpr int entriesEach[] = {2, 60};
const QString subject = QStringLiteral("archives");

QVector<PodContent> oneArchive(int number, int entryCount)
{
    QVector<PodContent> entries;
    for (int i = 0; i < entryCount; ++i) {
        entries +=
            PodContent{"ART\\AIRCRAFT" + QByteArray::number(number) + "\\TEXTURE" + QByteArray::number(i) + ".RAW",
                       QByteArray(4096, static_cast<char>(i))};
    }
    entries += PodContent{"DATA\\AIRCRAFT.NFO", "<make>\nMaker " + QByteArray::number(number) + "\n"};
    entries += PodContent{"DATA\\AIRCRAFT.SVH",
                          "<acid>\nF-ABCD\n<048a>\n140\n<043a>\n110\n<045a>\n700\n<044a>\n65\n<CEIL>\n13000\n"};
    return entries;
}

void writeArchives(const QString& folder, int entryCount)
{
    for (int number = 0; number < archives; ++number) {
        if (!writePod(QString("%1/aircraft%2.pod").arg(folder).arg(number), oneArchive(number, entryCount))) {
            qFatal("the archives cannot be written");
        }
    }
}

qint64 readBare(const QString& path)
{
    constexpr int headerSize = 276;
    constexpr int directoryOffsetAt = 264;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray header = file.read(headerSize);
    file.seek(qFromLittleEndian<qint32>(header.constData() + directoryOffsetAt));
    return file.readAll().size(); // records and names end the file
}

void measure(int entryCount)
{
    const QTemporaryDir folder;
    writeArchives(folder.path(), entryCount);
    const QStringList paths = aircraftArchives(folder.path());

    const int rounds = roundsOf(21);
    qint64 bytes = 0;
    qint64 entries = 0;
    const Comparison reading = compareMs(
        rounds,
        [&] {
            for (const QString& path : paths) {
                bytes += readBare(path);
            }
        },
        [&] {
            for (const QString& path : paths) {
                entries += CPodMgr(path).entries.size();
            }
        });
    qint64 cruise = 0;
    const double aircraft = medianMs(rounds, [&] {
        for (const QString& path : paths) {
            cruise += readAircraftArchive(path).speedCruise;
        }
    });
    const qint64 readings = (rounds + qint64(1)) * archives;
    if (bytes == 0 || entries != readings * (entryCount + 2) || cruise != readings * 110) {
        qFatal("something was not read");
    }

    const QString each = QString("500 archives of %1 entries").arg(entryCount + 2);
    printFigure({subject, each + ", bare reading of the directories", reading.firstMs, "ms"});
    printFigure({subject, each + ", CPodMgr", reading.secondMs, "ms"});
    printFigure({subject, each + ", CPodMgr to the bare reading", reading.ratio, "", 2.0});
    printFigure({subject, each + ", maker and numbers", aircraft, "ms"});
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    takeMeasureOptions(QCoreApplication::arguments());
    for (int entryCount : entriesEach) {
        measure(entryCount);
    }
}
