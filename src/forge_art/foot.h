// Infantry on a tile: lines, columns and skirmishers of single figures.
#pragma once

#include <vector>

#include "forge_art/troops.h"

namespace varnstride::art {

std::vector<Posted> PostLine(const Studio& studio, const Troop& troop, int strength);
std::vector<Posted> PostColumn(const Studio& studio, const Troop& troop, int strength);
std::vector<Posted> PostSkirmishers(const Studio& studio, const Troop& troop, int strength);

// One man: a body with the troop's head on it.
Tile FootFigure(const Studio& studio, const Troop& troop, std::string_view body);

}  // namespace varnstride::art
