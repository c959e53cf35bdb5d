#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <initializer_list>

/// Small strokes that all symbols share, so that the family keeps one line weight and one kind of corner.
namespace symbols {

/// Weight of a symbol's main outline, in units of the 16 unit square.
constexpr double outlineWeight = 1.5;

/// A line pen of the family: no brush, square corners, flat ends.
void usePen(QPainter& painter, const QColor& colour, double weight = outlineWeight);
/// A solid shape: brush only.
void useBrush(QPainter& painter, const QColor& colour);
/// A closed polygon through the points.
void polygon(QPainter& painter, std::initializer_list<QPointF> points);
/// An open line through the points.
void openLine(QPainter& painter, std::initializer_list<QPointF> points);
/// A solid circle.
void dot(QPainter& painter, const QPointF& centre, double radius, const QColor& colour);
/// A flat topped hexagon with corners at `radius` from the centre of the square.
QPolygonF hexagon(double radius);

} // namespace symbols
