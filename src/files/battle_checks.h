// What a file must hold before any of it reaches a game: everything that rules and drawing take
// for granted.
#pragma once

#include <optional>
#include <string>

#include "files/battle_file.h"

namespace varnstride {

// The first fault found, as block, place and value; nothing for a sound file.
std::optional<std::string> FindFault(const BattleFile& file, const AtlasCatalogue& atlases);

// The first field out of its range in a cell or a unit by itself, as name and value.
std::optional<std::string> FindFaultOf(const MapCell& cell);
std::optional<std::string> FindFaultOf(const Unit& unit);

}  // namespace varnstride
