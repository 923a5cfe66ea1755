// Which sheet shows which troops of which army: the fresh, the spent and the form that stands on a
// base.
#pragma once

#include <span>
#include <string_view>

#include "forge_art/troops.h"

namespace varnstride::art {

struct TroopSheets {
    std::string_view fresh;  // names under Units without extension; empty where there is none
    std::string_view spent;
    std::string_view based;
    Troop troop;
    int count;       // strengths of the fresh and spent sheets
    int basedCount;  // strengths of the sheet for bases
};

std::span<const TroopSheets> AllTroopSheets();

// Two pictures, spent and fresh, for each army that has leaders on the map.
std::vector<Tile> PaintLeaders(const Studio& studio, bool hasBase);

}  // namespace varnstride::art
