// The enemy's grip at the start of a turn: foot and field guns in front of him cannot leave.
#pragma once

#include "model/game.h"

namespace varnstride {

// Walks all areas of the map for the army in play and takes the Action Points from the units that
// the enemy holds fast.
void StartTurnAreaPass(Game& game);

}  // namespace varnstride
