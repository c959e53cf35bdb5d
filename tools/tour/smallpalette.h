#pragma once

#include <QImage>

/// The picture with at most so many colours (1 to 256) in a palette, so that its file becomes small: with those that it
/// has if they are few enough, else with the means of groups of near colours. Transparency is lost.
QImage withFewColours(const QImage& picture, int colours);
