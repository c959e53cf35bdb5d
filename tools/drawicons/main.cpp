// Draws the program's icons, marker images and splash image into a folder: "drawicons FOLDER". A second argument
// names a PNG that shows the whole family enlarged on a light and on a dark ground.
#include "appicon.h"
#include "bitmapfile.h"
#include "canvas.h"
#include "splash.h"
#include "symbols.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

#include <array>
#include <iterator>

namespace {

constexpr int iconSize = 16;
constexpr int markerSize = 32;

/// Img00.bmp onwards, in the order of their numbers.
const std::array<symbols::Draw, 39> icons = {symbols::centre,
                                             symbols::aircraft,
                                             symbols::flightPlan,
                                             symbols::ndb,
                                             symbols::dme,
                                             symbols::vor,
                                             symbols::ndbLayer,
                                             symbols::tacan,
                                             symbols::airport,
                                             symbols::fullScreen,
                                             symbols::runwayEnd,
                                             symbols::heliport,
                                             symbols::waypointEnRoute,
                                             symbols::waypointTerminal,
                                             symbols::waypointRnav,
                                             symbols::vorDme,
                                             symbols::vortac,
                                             symbols::ndbDme,
                                             symbols::landingSystem,
                                             symbols::markerBeacon,
                                             symbols::radio,
                                             symbols::search,
                                             symbols::newDocument,
                                             symbols::openFolder,
                                             symbols::save,
                                             symbols::departure,
                                             symbols::arrival,
                                             symbols::boundary,
                                             symbols::leg,
                                             symbols::sid,
                                             symbols::star,
                                             symbols::seaplaneBase,
                                             symbols::closedAirport,
                                             symbols::waypointVisual,
                                             symbols::landmark,
                                             symbols::procedurePoint,
                                             symbols::airwayLow,
                                             symbols::airwayHigh,
                                             symbols::airwayBoth};

struct MarkerImage
{
    const char* fileName;
    symbols::Draw draw;
};

const MarkerImage markers[] = {{"NDB.png", symbols::ndb}, {"VOR.png", symbols::vor}, {"VORDME.png", symbols::vorDme}};

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// The program's own icon: a PNG of each size and all of them in one Windows icon file.
bool writeAppIcons(const QDir& folder)
{
    bool good = folder.mkpath(QStringLiteral("app"));
    QVector<QImage> images;
    for (const int size : appIconSizes) {
        images.append(appIcon(size));
        good = images.last().save(folder.filePath(QStringLiteral("app/zephan-trajector-%1.png").arg(size))) && good;
    }
    const QByteArray ico = icoBytes(images);
    return !ico.isEmpty() && writeFile(folder.filePath(QStringLiteral("app/zephan-trajector.ico")), ico) && good;
}

bool writeAll(const QDir& folder)
{
    bool good = writeAppIcons(folder);
    for (std::size_t number = 0; number < icons.size(); ++number) {
        const QString name = QStringLiteral("Img%1.bmp").arg(int(number), 2, 10, QLatin1Char('0'));
        good = writeFile(folder.filePath(name), bitmapBytes(drawnOnNothing(iconSize, symbols::edge, icons[number]))) &&
               good;
    }
    for (const MarkerImage& marker : markers)
        good = drawnOnNothing(markerSize, symbols::edge, marker.draw)
                   .save(folder.filePath(QLatin1String(marker.fileName))) &&
               good;
    return splashImage().save(folder.filePath(QStringLiteral("AeoZephanSplash.jpg")), "JPG", 88) && good;
}

/// One ground of the sheet: every icon eight times enlarged with its number, and once at its own size.
void drawSheetHalf(QPainter& painter, const QDir& folder, int top, const QColor& ground)
{
    constexpr int columns = 13;
    constexpr int cell = 104;
    painter.fillRect(0, top, columns * cell, 3 * cell + 8, ground);
    painter.setPen(ground.lightness() > 128 ? Qt::black : Qt::white);
    for (int number = 0; number < int(icons.size()); ++number) {
        const QImage icon(folder.filePath(QStringLiteral("Img%1.bmp").arg(number, 2, 10, QLatin1Char('0'))));
        const QPoint corner((number % columns) * cell + 4, top + (number / columns) * cell + 4);
        painter.drawImage(corner, icon.scaled(80, 80));
        painter.drawImage(corner + QPoint(82, 4), icon);
        painter.drawText(corner + QPoint(2, 94), QString::number(number));
    }
}

bool writeSheet(const QDir& folder, const QString& path)
{
    QImage sheet(13 * 104, 2 * (3 * 104 + 8), QImage::Format_RGB32);
    QPainter painter(&sheet);
    drawSheetHalf(painter, folder, 0, QColor(0xf0, 0xf0, 0xf0));
    drawSheetHalf(painter, folder, 3 * 104 + 8, QColor(0x2b, 0x2b, 0x2b));
    painter.end();
    return sheet.save(path);
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing is shown, and a machine without a display must do
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    QTextStream errors(stderr);
    if (arguments.isEmpty() || arguments.size() > 2) {
        errors << "usage: drawicons FOLDER [SHEET.png]\n";
        return 2;
    }
    const QDir folder(arguments.first());
    if (!folder.mkpath(QStringLiteral(".")) || !writeAll(folder)) {
        errors << "cannot write into " << arguments.first() << "\n";
        return 1;
    }
    if (arguments.size() == 2 && !writeSheet(folder, arguments.last())) {
        errors << "cannot write " << arguments.last() << "\n";
        return 1;
    }
    return 0;
}
