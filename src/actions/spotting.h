// What a side sees under fog of war: each of its units as far as it could move with an Action
// Point.
#pragma once

#include "model/game.h"

namespace varnstride {

// Lights what the units of currentArmy see, adding to what is lit. selectedCell is overwritten.
void SpotFromArmy(Game& game);

// After a move of the unit in hand, with fog of war on: the units of other armies that it sees
// become visible. selectedCell is overwritten, moveCost is not.
void SpotAfterMove(Game& game);

}  // namespace varnstride
