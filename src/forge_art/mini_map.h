// The jump map: a cell of four pixels by four, told by its colour.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintMiniMap(const Studio& studio);

}  // namespace varnstride::art
