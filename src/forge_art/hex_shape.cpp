#include "forge_art/hex_shape.h"

#include <algorithm>
#include <cmath>

namespace varnstride::art {

int HexShape::HalfWidth(int y) const {
    if (y < Top() || y >= Bottom()) return 0;
    const int half = width / 2;
    const auto opening = [&](int row) {
        return static_cast<int>(std::lround((row + 0.5) * half / slant));
    };
    const int row = y - Top();
    if (row < slant) return opening(row);
    return row < rowStep ? half : half - opening(row - rowStep);
}

QPoint HexShape::Neighbour(int side) const {
    const int half = width / 2;
    const std::array<QPoint, kSideCount> steps = {{{half, -rowStep},
                                                   {width, 0},
                                                   {half, rowStep},
                                                   {-half, rowStep},
                                                   {-width, 0},
                                                   {-half, -rowStep}}};
    return steps[static_cast<std::size_t>(side)];
}

QPointF HexShape::Gate(int side) const {
    return QPointF(Neighbour(side)) / 2.0;
}

QPointF HexShape::Corner(int side) const {
    const double half = width / 2.0;
    const double point = (rowStep + slant) / 2.0;
    const double shoulder = (rowStep - slant) / 2.0;
    const std::array<QPointF, kSideCount> corners = {{{0, -point},
                                                      {half, -shoulder},
                                                      {half, shoulder},
                                                      {0, point},
                                                      {-half, shoulder},
                                                      {-half, -shoulder}}};
    return corners[static_cast<std::size_t>(side)];
}

double HexShape::Beyond(int side, double x, double y) const {
    const QPointF begin = Corner(side);
    const QPointF end = Corner((side + 1) % kSideCount);
    const QPointF along = end - begin;
    const double length = std::hypot(along.x(), along.y());
    return ((x - begin.x()) * along.y() - (y - begin.y()) * along.x()) / length;
}

double HexShape::Beyond(double x, double y) const {
    double farthest = Beyond(kNorthEast, x, y);
    for (int side = kEast; side < kSideCount; ++side)
        farthest = std::max(farthest, Beyond(side, x, y));
    return farthest;
}

}  // namespace varnstride::art
