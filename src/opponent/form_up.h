// How a unit of the computer meets the enemy of its area, or failing that of the next.
#pragma once

#include "model/game.h"

namespace varnstride {

// Lets the unit in hand form up; its area must be in hand.
void FormUp(Game& game);

}  // namespace varnstride
