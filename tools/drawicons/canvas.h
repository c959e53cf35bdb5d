#pragma once

#include <QImage>
#include <QPainter>

#include <functional>

/// A transparent image of `size` x `size` pixels with a drawing on it whose own square is `unitEdge` units wide.
///
/// The colours of half covered pixels are reckoned here and not by Qt, whose results differ by one step between
/// processors: the files must come out the same everywhere.
QImage drawnOnNothing(int size, double unitEdge, const std::function<void(QPainter&)>& draw);
