#include "splash.h"

#include "pens.h"
#include "symbols.h"

#include <QLinearGradient>

namespace {

constexpr int splashWidth = 640;
constexpr int splashHeight = 400;
constexpr double horizon = 285.0;

void drawSky(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, horizon);
    sky.setColorAt(0.0, QColor(0x0e, 0x1f, 0x3d));
    sky.setColorAt(0.6, QColor(0x2f, 0x5f, 0x9a));
    sky.setColorAt(0.9, QColor(0xe0, 0x9a, 0x5c));
    sky.setColorAt(1.0, QColor(0xf5, 0xc9, 0x84));
    painter.fillRect(0, 0, splashWidth, splashHeight, sky);
}

/// The curved earth below the horizon, with meridians that run together at its edge.
void drawEarth(QPainter& painter)
{
    QPainterPath earth;
    earth.addEllipse(QPointF(320.0, horizon + 1500.0), 1900.0, 1500.0);
    QLinearGradient ground(0, horizon, 0, splashHeight);
    ground.setColorAt(0.0, QColor(0x1d, 0x3c, 0x55));
    ground.setColorAt(1.0, QColor(0x0b, 0x1a, 0x2a));
    painter.fillPath(earth, ground);
    painter.setClipPath(earth);
    symbols::usePen(painter, QColor(255, 255, 255, 38), 1.0);
    for (int meridian = -12; meridian <= 12; ++meridian)
        painter.drawLine(QPointF(320.0 + meridian * 30.0, horizon - 5.0), QPointF(320.0 + meridian * 110.0, 420.0));
    for (const double y : {296.0, 314.0, 344.0, 388.0})
        painter.drawEllipse(QPointF(320.0, y + 1500.0), 1900.0, 1500.0);
    painter.setClipping(false);
}

void drawRoute(QPainter& painter)
{
    QPainterPath route(QPointF(70.0, 330.0));
    route.cubicTo(180.0, 150.0, 380.0, 105.0, 520.0, 150.0);
    QPen pen(QColor(0xff, 0xd9, 0x9a), 2.5, Qt::DashLine, Qt::RoundCap);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawPath(route);
    for (const double along : {0.0, 0.35, 0.7})
        symbols::dot(painter, route.pointAtPercent(along), 5.0, QColor(0xff, 0xd9, 0x9a));
    painter.save();
    painter.translate(route.pointAtPercent(1.0));
    painter.rotate(90.0 - route.angleAtPercent(1.0));
    painter.scale(3.4, 3.4);
    painter.translate(-8.0, -8.0);
    painter.fillPath(symbols::aeroplane(), Qt::white);
    painter.restore();
}

void drawName(QPainter& painter)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(44);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(36.0, 72.0), QStringLiteral("AeoZephan"));
    font.setPixelSize(20);
    font.setBold(false);
    painter.setFont(font);
    painter.setPen(QColor(0xff, 0xd9, 0x9a));
    painter.drawText(QPointF(38.0, 104.0), QStringLiteral("Zephan Trajector"));
}

} // namespace

QImage splashImage()
{
    QImage image(splashWidth, splashHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSky(painter);
    drawEarth(painter);
    drawRoute(painter);
    drawName(painter);
    return image;
}
