// A move of the computer's into an area that a pass has chosen, and what may keep a unit from it.
#pragma once

#include "model/game.h"

namespace varnstride {

// Moves the unit in hand into the area of targetCell at the cost of a Command Point; whether it
// went. A unit that did not keeps its place and its Action Points.
bool TryMove(Game& game);

// Whether the unit in hand shuns the enemy of the last census.
bool ShunsEnemy(const Game& game);

// Looks for an enemy between the unit in hand and targetCell if the unit can go two areas far:
// moveBlocked and stoppedShort are clear when it meets nobody.
void LookForInterception(Game& game);

}  // namespace varnstride
