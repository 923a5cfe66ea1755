// The computer's player turn.
#pragma once

#include "model/game.h"

namespace varnstride {

// Plays the whole turn of the army in play.
void RunOpponentTurn(Game& game);

// Two battles change the way the computer's armies make for as they go on.
void AdjustAdvanceDirection(Game& game);

}  // namespace varnstride
