// The counters of the zoom-out view: a sign for each arm, and squares in the colours of armies.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintSmallUnits(const Studio& studio);
std::vector<Tile> PaintArmyColors(const Studio& studio);

}  // namespace varnstride::art
