// Roads, tracks, streams and rivers: the feature layer. A picture belongs to each set of sides that
// a way runs through; ways leave a cell in the middle of a side, so that they join from cell to
// cell.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintWays(const Studio& studio);
std::vector<Tile> PaintSmallWays(const Studio& studio);

// For the mini-map, where a cell has four pixels by four.
std::vector<Tile> PaintTinyWays(const Studio& studio);

}  // namespace varnstride::art
