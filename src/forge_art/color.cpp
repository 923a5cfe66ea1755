#include "forge_art/color.h"

#include <algorithm>
#include <cmath>

namespace varnstride::art {
namespace {

int Channel(double value) {
    return static_cast<int>(std::lround(std::clamp(value, 0.0, 255.0)));
}

}  // namespace

QRgb Mix(QRgb a, QRgb b, double share) {
    const auto blend = [share](int from, int to) { return Channel(from + (to - from) * share); };
    return qRgb(blend(qRed(a), qRed(b)), blend(qGreen(a), qGreen(b)), blend(qBlue(a), qBlue(b)));
}

QRgb Scaled(QRgb color, double factor) {
    return qRgb(Channel(qRed(color) * factor), Channel(qGreen(color) * factor),
                Channel(qBlue(color) * factor));
}

int Lightness(QRgb color) {
    return (qRed(color) * 54 + qGreen(color) * 183 + qBlue(color) * 19) / 256;
}

}  // namespace varnstride::art
