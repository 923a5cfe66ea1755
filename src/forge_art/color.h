// Mixing of colours. Every painter calls it.
#pragma once

#include <QRgb>

namespace varnstride::art {

// From a (share 0) to b (share 1); opaque.
QRgb Mix(QRgb a, QRgb b, double share);

// Lighter for a factor above 1, darker below; held inside what a pixel can show.
QRgb Scaled(QRgb color, double factor);

// The light that an eye sees in a colour, 0 to 255.
int Lightness(QRgb color);

}  // namespace varnstride::art
