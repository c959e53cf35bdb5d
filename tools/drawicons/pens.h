#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <functional>
#include <initializer_list>

/// Small strokes that all symbols share, so that the family keeps one line weight and one kind of corner.
namespace symbols {

/// Weight of a symbol's main outline, in units of the 16 unit square.
constexpr double outlineWeight = 2.0;

/// A line pen of the family: no brush, square corners, flat ends.
void usePen(QPainter& painter, const QColor& colour, double weight = outlineWeight);
/// A solid shape: brush only.
void useBrush(QPainter& painter, const QColor& colour);
/// Cuts what is drawn next out of what is there already, until the painter is restored.
void useKnife(QPainter& painter);
/// The colour of a surface inside an outline: the outline's own, thin as the charts lay it over a zone.
QColor tint(const QColor& colour);
/// A closed polygon through the points.
void polygon(QPainter& painter, std::initializer_list<QPointF> points);
/// An open line through the points.
void openLine(QPainter& painter, std::initializer_list<QPointF> points);
/// A solid circle.
void dot(QPainter& painter, const QPointF& centre, double radius, const QColor& colour);
/// A drawing repeated around the middle of the square, turned to each of the angles, in degrees. Its origin is there.
void around(QPainter& painter, std::initializer_list<int> turns, const std::function<void()>& draw);
/// A flat topped hexagon around the middle of the square: half its width, half its height.
QPolygonF hexagon(double halfWidth, double halfHeight);

} // namespace symbols
