// The terrain layer: which picture stands under each tile number of a cell's ground, for both views
// and for snow.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintTerrain(const Studio& studio);
std::vector<Tile> PaintFrozenTerrain(const Studio& studio);
std::vector<Tile> PaintSmallTerrain(const Studio& studio);

}  // namespace varnstride::art
