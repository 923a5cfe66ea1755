// Men drawn up on one tile: where each stands, and how they are laid over each other from the back
// to the front with outlines and shadows, so that a unit stands out from any ground.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

struct Posted {
    Tile figure;  // without outline, the ground under it at (0,0)
    QPoint place;
    int footing;  // width of the shadow; 0 for none
};

enum class Facing { Right, Left };
enum class Freshness { Fresh, Spent };

// Facing left mirrors places and figures; shadows fall to the south-east in any case. With bases
// the ground's shadows are left out.
struct MusterLook {
    Facing facing = Facing::Right;
    Freshness freshness = Freshness::Fresh;
    bool hasBase = false;
};

Tile Mustered(std::vector<Posted> men, const Studio& studio, const MusterLook& look);

}  // namespace varnstride::art
