// The straight way over hexes and the numbers of the six sides, as roads and water need them.
#pragma once

#include <cstddef>
#include <vector>

#include "model/cell.h"

namespace varnstride {

constexpr int kSides = 6;  // numbered in the order of kHexSides: 0 north-east, then clockwise

constexpr Cell Beyond(Cell cell, int side) {
    return Step(cell, kHexSides[static_cast<std::size_t>(side)]);
}
constexpr int OppositeSide(int side) {
    return (side + kSides / 2) % kSides;
}
// The bit of a side in the masks of the feature layer.
constexpr unsigned SideBit(int side) {
    return 1U << side;
}

// How many steps over sides part two cells.
int HexDistance(Cell from, Cell to);

// Every cell from one to the other, both included, each a neighbour of the one before: a shortest
// way, as near to the straight line as hexes allow, inside a grid of that many columns.
std::vector<Cell> HexWalk(Cell from, Cell to, int columns);

// The side of a cell beyond which its neighbour lies.
int SideTowards(Cell cell, Cell neighbour);

}  // namespace varnstride
