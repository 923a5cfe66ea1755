// What stands beside a unit: its morale and ammunition, and the base under it.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

// Five fillings, the fullest first; color is a name of the palette. It stands to the left of a
// unit.
std::vector<Tile> PaintMoraleBar(const Studio& studio, const char* color);
// Four fillings, the emptiest first, to the right of a unit.
std::vector<Tile> PaintAmmunition(const Studio& studio);
// Bases in the order British, Prussian, French, Prussian, Austrian, spent.
std::vector<Tile> PaintBases(const Studio& studio);

}  // namespace varnstride::art
