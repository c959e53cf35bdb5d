#include "smallpalette.h"

#include <QHash>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

struct Counted
{
    QRgb colour;
    qint64 pixels;
};

using Group = QVector<Counted>;

using Channel = int (*)(QRgb);
const Channel channels[] = {qRed, qGreen, qBlue};

Group countedColours(const QImage& picture)
{
    QHash<QRgb, qint64> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            ++pixels[line[x] | 0xff000000U];
        }
    }
    Group all;
    for (auto colour = pixels.constBegin(); colour != pixels.constEnd(); ++colour) {
        all.append({colour.key(), colour.value()});
    }
    // The hash has no order of its own: the same picture is to give the same file.
    std::sort(all.begin(), all.end(), [](const Counted& a, const Counted& b) { return a.colour < b.colour; });
    return all;
}

int widthOf(const Group& group, Channel channel)
{
    const auto ends = std::minmax_element(group.begin(), group.end(), [channel](const Counted& a, const Counted& b) {
        return channel(a.colour) < channel(b.colour);
    });
    return channel(ends.second->colour) - channel(ends.first->colour);
}

/// The channel in which the group's colours lie farthest apart.
Channel widestChannel(const Group& group)
{
    return *std::max_element(std::begin(channels), std::end(channels),
                             [&group](Channel a, Channel b) { return widthOf(group, a) < widthOf(group, b); });
}

/// What would be gained by cutting a group: broad ones of many pixels first.
double weightOf(const Group& group)
{
    double pixels = 0;
    for (const Counted& colour : group) {
        pixels += static_cast<double>(colour.pixels);
    }
    const int width = widthOf(group, widestChannel(group));
    return static_cast<double>(width) * width * std::sqrt(pixels);
}

/// Cuts the group in two about the middle of its widest channel; the upper one is taken out and returned.
Group cut(Group& group)
{
    const Channel channel = widestChannel(group);
    std::sort(group.begin(), group.end(), [channel](const Counted& a, const Counted& b) {
        return channel(a.colour) != channel(b.colour) ? channel(a.colour) < channel(b.colour) : a.colour < b.colour;
    });
    const int middle = (channel(group.first().colour) + channel(group.last().colour)) / 2;
    const auto upper = std::find_if(group.begin(), group.end(),
                                    [&](const Counted& colour) { return channel(colour.colour) > middle; });
    const int lower = static_cast<int>(upper - group.begin());
    Group taken = group.mid(lower);
    group.resize(lower);
    return taken;
}

QRgb meanOf(const Group& group)
{
    qint64 sums[] = {0, 0, 0};
    qint64 pixels = 0;
    for (const Counted& colour : group) {
        pixels += colour.pixels;
        for (int i = 0; i < 3; ++i) {
            sums[i] += channels[i](colour.colour) * colour.pixels;
        }
    }
    return qRgb(static_cast<int>(sums[0] / pixels), static_cast<int>(sums[1] / pixels),
                static_cast<int>(sums[2] / pixels));
}

QVector<Group> grouped(const Group& all, int most)
{
    QVector<Group> groups{all};
    while (groups.size() < most) {
        const auto next = std::max_element(groups.begin(), groups.end(),
                                           [](const Group& a, const Group& b) { return weightOf(a) < weightOf(b); });
        if (next->size() < 2) {
            break;
        }
        const Group upper = cut(*next);
        groups.append(upper);
    }
    return groups;
}

} // namespace

QImage withFewColours(const QImage& picture, int colours)
{
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    if (source.isNull()) {
        return {};
    }
    const QVector<Group> groups = grouped(countedColours(source), qBound(1, colours, 256));
    QHash<QRgb, uchar> indexOf;
    QImage result(source.size(), QImage::Format_Indexed8);
    result.setColorCount(groups.size());
    for (int i = 0; i < groups.size(); ++i) {
        result.setColor(i, meanOf(groups[i]));
        for (const Counted& colour : groups[i]) {
            indexOf.insert(colour.colour, static_cast<uchar>(i));
        }
    }
    for (int y = 0; y < source.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        uchar* to = result.scanLine(y);
        for (int x = 0; x < source.width(); ++x) {
            to[x] = indexOf.value(from[x] | 0xff000000U);
        }
    }
    return result;
}
