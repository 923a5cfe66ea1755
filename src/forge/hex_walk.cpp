#include "forge/hex_walk.h"

#include <algorithm>
#include <cstdlib>

namespace varnstride {
namespace {

// Axes of a slanted grid, in which distances are easily told.
struct Slanted {
    int column;
    int row;
};

Slanted SlantedOf(Cell cell) {
    return {cell.x - (cell.y - (cell.y & 1)) / 2, cell.y};
}

// Twice the columns, counting the half hex by which odd rows are set off.
int HalfColumns(Cell cell) {
    return 2 * cell.x + (cell.y & 1);
}

// How far a cell lies off the line between two others, in a measure that serves comparison only.
int OffLine(Cell cell, Cell from, Cell to) {
    const int along = HalfColumns(to) - HalfColumns(from);
    const int down = to.y - from.y;
    return std::abs(along * (cell.y - from.y) - down * (HalfColumns(cell) - HalfColumns(from)));
}

}  // namespace

int HexDistance(Cell from, Cell to) {
    const Slanted a = SlantedOf(from);
    const Slanted b = SlantedOf(to);
    const int columns = b.column - a.column;
    const int rows = b.row - a.row;
    return std::max({std::abs(columns), std::abs(rows), std::abs(columns + rows)});
}

std::vector<Cell> HexWalk(Cell from, Cell to, int columns) {
    std::vector<Cell> walk = {from};
    while (walk.back() != to) {
        const Cell here = walk.back();
        const int left = HexDistance(here, to);
        Cell best = here;
        for (int side = 0; side < kSides; ++side) {
            const Cell next = Beyond(here, side);
            if (HexDistance(next, to) >= left || next.x < 0 || next.x >= columns) continue;
            if (best == here || OffLine(next, from, to) < OffLine(best, from, to)) best = next;
        }
        walk.push_back(best);
    }
    return walk;
}

int SideTowards(Cell cell, Cell neighbour) {
    int side = 0;
    while (side + 1 < kSides && Beyond(cell, side) != neighbour)
        ++side;
    return side;
}

}  // namespace varnstride
