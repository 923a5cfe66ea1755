// Woodland, forest, orchards and vineyards: clumps of single trees that join from cell to cell,
// with rides cut through them for roads, and plants in rows.
#pragma once

#include "forge_art/hex_shape.h"
#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

// The room that trees keep free: a mask of the sides between which a road runs; 0 for none.
struct Ride {
    int sides = 0;
};

Tile PaintWoodland(const Studio& studio, const HexShape& hex, Ride ride, int variant);
Tile PaintForest(const Studio& studio, const HexShape& hex, Ride ride, int variant);
Tile PaintOrchard(const Studio& studio, const HexShape& hex, int variant);
Tile PaintVineyard(const Studio& studio, const HexShape& hex, int variant);
// Bushes and broken ground.
Tile PaintScrub(const Studio& studio, const HexShape& hex, int variant);

}  // namespace varnstride::art
