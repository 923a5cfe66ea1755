// The Strength Dialog: what both sides have left of each arm, and what they have lost.
#pragma once

#include "model/game.h"

namespace varnstride {

// The strength of the enemy is shown once the battle, or a turn that both players see, is over.
void ShowStrength(Game& game);

}  // namespace varnstride
