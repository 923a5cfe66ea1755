// The overlay layer between ground and terrain: hachures where the ground falls to the next cell,
// and the works of sappers, palisades and abatis.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintOverlays(const Studio& studio);
std::vector<Tile> PaintSmallOverlays(const Studio& studio);
std::vector<Tile> PaintTinyOverlays(const Studio& studio);

}  // namespace varnstride::art
