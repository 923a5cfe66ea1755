// The top layer of the ground: bridges, the smoke of battle, a building on fire.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintRoadPieces(const Studio& studio);

}  // namespace varnstride::art
