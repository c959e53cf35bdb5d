// Commands of the window: centre, full screen, documents.
#include "pens.h"
#include "symbols.h"

namespace symbols {

void centre(QPainter& painter)
{
    const QPointF middle(8.0, 8.0);
    usePen(painter, ink::plain);
    painter.drawEllipse(middle, 4.6, 4.6);
    for (const int turn : {0, 90, 180, 270}) {
        painter.save();
        painter.translate(middle);
        painter.rotate(turn);
        painter.drawLine(QPointF(0.0, -3.2), QPointF(0.0, -7.8));
        painter.restore();
    }
    dot(painter, middle, 1.5, ink::warning);
}

void fullScreen(QPainter& painter)
{
    for (const int turn : {0, 90, 180, 270}) {
        painter.save();
        painter.translate(8.0, 8.0);
        painter.rotate(turn);
        useBrush(painter, ink::plain);
        polygon(painter, {{-7.0, -7.0}, {-2.0, -7.0}, {-7.0, -2.0}});
        usePen(painter, ink::plain, 1.6);
        painter.drawLine(QPointF(-5.0, -5.0), QPointF(-1.6, -1.6));
        painter.restore();
    }
}

void flightPlan(QPainter& painter)
{
    usePen(painter, ink::plain, 1.2);
    painter.drawRect(QRectF(2.6, 0.9, 10.8, 14.2));
    usePen(painter, ink::ndb, 1.5);
    openLine(painter, {{5.0, 12.0}, {7.0, 6.5}, {11.0, 4.0}});
    dot(painter, QPointF(5.0, 12.0), 1.5, ink::waypoint);
    dot(painter, QPointF(11.0, 4.0), 1.5, ink::waypoint);
}

void newDocument(QPainter& painter)
{
    usePen(painter, ink::plain, 1.3);
    polygon(painter, {{3.0, 1.0}, {9.0, 1.0}, {13.0, 5.0}, {13.0, 15.0}, {3.0, 15.0}});
    openLine(painter, {{9.0, 1.0}, {9.0, 5.0}, {13.0, 5.0}});
    useBrush(painter, ink::airport);
    painter.drawRect(QRectF(7.0, 7.0, 2.0, 6.0));
    painter.drawRect(QRectF(5.0, 9.0, 6.0, 2.0));
}

void openFolder(QPainter& painter)
{
    usePen(painter, ink::waypoint, 1.3);
    openLine(painter, {{1.5, 13.0}, {1.5, 3.0}, {6.0, 3.0}, {7.5, 5.0}, {13.0, 5.0}, {13.0, 7.0}});
    useBrush(painter, ink::waypoint);
    polygon(painter, {{4.0, 7.0}, {15.5, 7.0}, {12.5, 14.0}, {1.0, 14.0}});
}

void save(QPainter& painter)
{
    usePen(painter, ink::vor, 1.4);
    polygon(painter, {{1.7, 1.7}, {11.5, 1.7}, {14.3, 4.5}, {14.3, 14.3}, {1.7, 14.3}});
    useBrush(painter, ink::vor);
    painter.drawRect(QRectF(4.5, 1.7, 6.0, 4.0));
    painter.drawRect(QRectF(4.0, 9.0, 8.0, 5.3));
}

void search(QPainter& painter)
{
    usePen(painter, ink::plain, 1.7);
    painter.drawEllipse(QPointF(6.5, 6.5), 4.8, 4.8);
    usePen(painter, ink::plain, 2.6);
    painter.drawLine(QPointF(9.8, 9.8), QPointF(14.6, 14.6));
}

} // namespace symbols
