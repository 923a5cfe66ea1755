// The computer's pick of a tactic.
#pragma once

#include "model/game.h"

namespace varnstride {

// Draws a tactic and fits it to the own arms, to the enemy's and to the ground.
void LetComputerChoose(Game& game);

}  // namespace varnstride
