#include "display/mouse_map.h"

#include <array>
#include <cstdlib>

namespace varnstride {
namespace {

constexpr int kWidestMouseMap = 256;

}  // namespace

MouseMap::MouseMap(int width, int height)
    : width_(width),
      height_(height),
      parts_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
}

Cell MouseMap::CellAt(Point point) const {
    const int fineX = FloorRemainder(point.x, width_);
    const int fineY = FloorRemainder(point.y, height_);
    // Two rows lie in the height of a tile.
    const Cell coarse{FloorDivide(point.x, width_), 2 * FloorDivide(point.y, height_)};
    switch (parts_[Index(fineX, fineY)]) {
        case Part::Inside: break;
        case Part::NorthWest: return Step(coarse, Direction::NorthWest);
        case Part::NorthEast: return Step(coarse, Direction::NorthEast);
        case Part::SouthWest: return Step(coarse, Direction::SouthWest);
        case Part::SouthEast: return Step(coarse, Direction::SouthEast);
    }
    return coarse;
}

Result<MouseMap> MakeMouseMap(const Surface& picture, const std::string& name) {
    if (picture.Width() > kWidestMouseMap || picture.Height() > kWidestMouseMap ||
        picture.Width() < 2 || picture.Height() < 2 || picture.Width() % 2 != 0 ||
        picture.Height() % 2 != 0) {
        return Failure{name + ": is no footprint of a cell: its size is " +
                       std::to_string(picture.Width()) + " x " + std::to_string(picture.Height())};
    }
    MouseMap map(picture.Width(), picture.Height());
    const int right = picture.Width() - 1;
    const int bottom = picture.Height() - 1;
    for (int y = 0; y <= bottom; ++y) {
        for (int x = 0; x <= right; ++x) {
            const Pixel pixel = picture.At(x, y);
            MouseMap::Part& part = map.parts_[map.Index(x, y)];
            if (pixel == picture.At(right, 0)) part = MouseMap::Part::NorthEast;
            if (pixel == picture.At(right, bottom)) part = MouseMap::Part::SouthEast;
            if (pixel == picture.At(0, 0)) part = MouseMap::Part::NorthWest;
            if (pixel == picture.At(0, bottom)) part = MouseMap::Part::SouthWest;
        }
    }
    return map;
}

bool IsInHex(int tileWidth, Point pixel) {
    const int half = tileWidth / 2;
    const int slant = tileWidth * 5 / 16;  // height of the pointed part above and below
    const int row = pixel.y + slant + (tileWidth - slant) / 2;
    if (row < 0 || row >= tileWidth + slant) return false;
    // What the lower point of a cell leaves free in its rows, the upper one of the next row fills.
    const auto opening = [&](int rows) { return ((2 * rows + 1) * half + slant) / (2 * slant); };
    int halfWidth = half;
    if (row < slant) halfWidth = opening(row);
    if (row >= tileWidth) halfWidth = half - opening(row - tileWidth);
    return pixel.x >= -halfWidth && pixel.x < halfWidth;
}

MouseMap HexMouseMap(int width, int height, Point center) {
    MouseMap map(width, height);
    const std::array<std::pair<Point, MouseMap::Part>, 4> neighbours = {{
        {{-width / 2, -height / 2}, MouseMap::Part::NorthWest},
        {{width / 2, -height / 2}, MouseMap::Part::NorthEast},
        {{-width / 2, height / 2}, MouseMap::Part::SouthWest},
        {{width / 2, height / 2}, MouseMap::Part::SouthEast},
    }};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (const auto& [shift, part] : neighbours) {
                if (IsInHex(width, Point{x, y} - center - shift))
                    map.parts_[map.Index(x, y)] = part;
            }
        }
    }
    return map;
}

}  // namespace varnstride
