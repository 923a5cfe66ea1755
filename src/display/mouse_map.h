// The footprint of a cell, pixel by pixel: whether a point in the rectangle around a cell belongs
// to it or to one of the four cells that look in at the corners. Its size is the size of a tile of
// the staggered grid.
#pragma once

#include <string>
#include <vector>

#include "display/surface.h"
#include "model/cell.h"
#include "model/result.h"

namespace varnstride {

class MouseMap {
 public:
    MouseMap() = default;

    int Width() const { return width_; }
    int Height() const { return height_; }

    // The cell under a point, when the rectangle of cell (0, 0) begins at (0, 0). It may lie off
    // the grid.
    Cell CellAt(Point point) const;

 private:
    friend Result<MouseMap> MakeMouseMap(const Surface& picture, const std::string& name);
    friend MouseMap HexMouseMap(int width, int height, Point center);

    enum class Part : std::uint8_t { Inside, NorthWest, NorthEast, SouthWest, SouthEast };

    MouseMap(int width, int height);
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Part> parts_;
};

// Tells the parts by the colours of the four corner pixels. With two corners alike the later of
// top right, bottom right, top left, bottom left wins. A failure starts with the name.
Result<MouseMap> MakeMouseMap(const Surface& picture, const std::string& name);

// The footprint of a hexagon, for a picture that is missing. The center of cell (0, 0) lies at
// that point of its rectangle.
MouseMap HexMouseMap(int width, int height, Point center);

// Whether a pixel lies in the hexagon of a tile of that width around (0, 0). The hexagons of the
// staggered grid fit without gap or overlap when a row is as high as a tile is wide.
bool IsInHex(int tileWidth, Point pixel);

}  // namespace varnstride
