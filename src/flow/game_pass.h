// The spine of the game: one pass of the phase machine, called again and again by whoever runs a
// battle. A player's orders come between two passes.
#pragma once

#include "model/game.h"

namespace varnstride {

void RunGamePass(Game& game);

// At the head of a player turn: seeds the generator and gives every army its Command Points; none
// when the game has ended.
void ResetCommandPoints(Game& game);

}  // namespace varnstride
