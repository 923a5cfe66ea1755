// Wet and stony ground of the terrain layer: marsh, swamp, lakes, reeds on a stream, rocks and
// quarries, and the loose marks of a field of corn.
#pragma once

#include "forge_art/hex_shape.h"
#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

Tile PaintMarsh(const Studio& studio, const HexShape& hex, bool isSwamp, int variant);
// The heart of a lake's cell; its shores belong to the feature layer.
Tile PaintLake(const Studio& studio, const HexShape& hex);
// Reeds for a stream, ripples for a river; the water itself belongs to the feature layer.
Tile PaintReeds(const Studio& studio, const HexShape& hex, int variant);
Tile PaintRipples(const Studio& studio, const HexShape& hex, int variant);
Tile PaintRocks(const Studio& studio, const HexShape& hex, int variant);
Tile PaintQuarry(const Studio& studio, const HexShape& hex);
Tile PaintSheaves(const Studio& studio, const HexShape& hex);
Tile PaintFlowers(const Studio& studio, const HexShape& hex, int variant);

}  // namespace varnstride::art
