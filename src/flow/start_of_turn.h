// The start of a player turn: points, notices, releases, arrivals, command control, fog of war.
#pragma once

#include "model/game.h"

namespace varnstride {

// All steps in one pass; the phase becomes Orders, or EndTurn after the computer has played.
void RunStartOfTurn(Game& game);

// When the computer commands the army in play: plays its turn and goes on to its end.
void LetComputerPlay(Game& game);

}  // namespace varnstride
