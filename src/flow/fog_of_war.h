// What the person at the screen sees of the enemy at the start of a player turn.
#pragma once

#include "model/game.h"

namespace varnstride {

// Sets visible for all units of the armies present.
void ApplyFogOfWar(Game& game);

}  // namespace varnstride
