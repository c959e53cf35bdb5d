#pragma once

#include <QImage>

/// The picture of the simulator's suite: dusk over a horizon with a great circle route. 640 x 400 pixels, opaque.
QImage splashImage();
