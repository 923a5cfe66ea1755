// A player's order to the unit in hand: go to the area of targetCell, or charge into it.
#pragma once

#include "model/game.h"

namespace varnstride {

void MoveOrder(Game& game);

}  // namespace varnstride
