// Where cells lie in the world: rows of tiles, each half a tile lower than the one above, odd rows
// half a tile to the right.
#pragma once

#include "display/geometry.h"
#include "model/cell.h"

namespace varnstride {

struct Plotter {
    int tileWidth = 0;   // pixels
    int tileHeight = 0;  // pixels; two rows lie in it

    // The world pixel of a cell's anchor.
    constexpr Point PlotCell(Cell cell) const {
        return {cell.x * tileWidth + (cell.y & 1) * (tileWidth / 2), cell.y * (tileHeight / 2)};
    }
};

// The cells of columns first to last and rows first to last, both included.
struct CellRange {
    Cell first;
    Cell last;
};

// The cells within the limits whose tiles may show in an area of the world, when a tile reaches at
// most so far around its anchor; perhaps a few more. Empty when none does.
constexpr CellRange CellsThatReach(const Plotter& plotter, const Rect& reach, const Rect& area,
                                   const CellRange& limits) {
    const int rowHeight = plotter.tileHeight / 2;
    const int half = plotter.tileWidth / 2;
    return {
        {std::max(limits.first.x, FloorDivide(area.left - reach.right - half, plotter.tileWidth)),
         std::max(limits.first.y, FloorDivide(area.top - reach.bottom, rowHeight))},
        {std::min(limits.last.x, FloorDivide(area.right - reach.left, plotter.tileWidth)),
         std::min(limits.last.y, FloorDivide(area.bottom - reach.top, rowHeight))}};
}

}  // namespace varnstride
