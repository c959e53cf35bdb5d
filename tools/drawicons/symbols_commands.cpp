// Commands of the window: centre, full screen, documents.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

/// A sheet of paper with a cut corner; its inside is free from 4 to 12 across and from 3 to 13 down.
void page(QPainter& painter)
{
    usePen(painter, ink::plain);
    polygon(painter, {{3.0, 2.0}, {9.0, 2.0}, {13.0, 6.0}, {13.0, 14.0}, {3.0, 14.0}});
}

} // namespace

void centre(QPainter& painter)
{
    usePen(painter, ink::plain);
    painter.drawEllipse(QPointF(8.0, 8.0), 4.0, 4.0);
    around(painter, {0, 90, 180, 270}, [&] { painter.drawLine(QPointF(0.0, -4.0), QPointF(0.0, -8.0)); });
    dot(painter, QPointF(8.0, 8.0), 1.4, ink::aircraft);
}

void fullScreen(QPainter& painter)
{
    around(painter, {0, 90, 180, 270}, [&] {
        usePen(painter, ink::plain);
        openLine(painter, {{-6.0, -2.0}, {-6.0, -6.0}, {-2.0, -6.0}});
    });
}

void flightPlan(QPainter& painter)
{
    page(painter);
    usePen(painter, ink::route);
    painter.drawLine(QPointF(6.0, 11.0), QPointF(10.0, 7.0));
    dot(painter, QPointF(6.0, 11.0), 1.7, ink::route);
    dot(painter, QPointF(10.0, 7.0), 1.7, ink::route);
}

void newDocument(QPainter& painter)
{
    page(painter);
    useBrush(painter, ink::waypoint);
    painter.drawRect(QRectF(7.0, 6.0, 2.0, 6.0));
    painter.drawRect(QRectF(5.0, 8.0, 6.0, 2.0));
}

void openFolder(QPainter& painter)
{
    useBrush(painter, ink::folder);
    polygon(painter, {{1.0, 2.0}, {6.0, 2.0}, {8.0, 4.0}, {13.0, 4.0}, {13.0, 6.0}, {3.0, 6.0}, {1.0, 11.0}});
    polygon(painter, {{4.0, 7.0}, {16.0, 7.0}, {13.0, 14.0}, {1.0, 14.0}});
}

void save(QPainter& painter)
{
    useBrush(painter, ink::navaid);
    polygon(painter, {{1.0, 1.0}, {12.0, 1.0}, {15.0, 4.0}, {15.0, 15.0}, {1.0, 15.0}});
    useKnife(painter);
    painter.drawRect(QRectF(4.0, 2.0, 7.0, 4.0));
    painter.drawRect(QRectF(3.0, 8.0, 10.0, 6.0));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    useBrush(painter, ink::navaid);
    painter.drawRect(QRectF(8.0, 2.0, 2.0, 3.0));
    painter.drawRect(QRectF(5.0, 10.0, 6.0, 2.0));
}

void search(QPainter& painter)
{
    usePen(painter, ink::plain);
    painter.drawEllipse(QPointF(7.0, 7.0), 5.0, 5.0);
    usePen(painter, ink::plain, 2.8);
    painter.drawLine(QPointF(10.4, 10.4), QPointF(15.0, 15.0));
}

} // namespace symbols
