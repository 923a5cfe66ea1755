// Villages, single buildings and camps: houses of houses.h put into a cell. Houses keep clear of
// the lines from the middle of a cell to its sides, where roads run.
#pragma once

#include "forge_art/hex_shape.h"
#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

Tile PaintVillage(const Studio& studio, int variant);
Tile PaintChurch(const Studio& studio);
// 0 a walled farm, 1 an abbey or manor, 2 a garden wall, 3 a mill, 4 a barn with stacks.
Tile PaintBuilding(const Studio& studio, int variant);
Tile PaintCamp(const Studio& studio, int variant);

Tile PaintSmallVillage(const Studio& studio, int variant);
Tile PaintSmallBuilding(const Studio& studio, bool hasTower);
Tile PaintSmallCamp(const Studio& studio);

}  // namespace varnstride::art
