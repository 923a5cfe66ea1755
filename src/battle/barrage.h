// Guns that shell another area than their own: the fire that a shot may start.
#pragma once

#include "model/game.h"

namespace varnstride {

// After a barrage of the unit in hand on the area in hand: one house in ten that is hit burns.
void CheckBuildingFire(Game& game);

}  // namespace varnstride
