// The start of a player turn: points, notices, releases, arrivals, command control, fog of war.
#pragma once

#include "model/game.h"

namespace varnstride {

// All steps in one pass; the phase becomes Orders, or EndTurn after the computer has played.
void RunStartOfTurn(Game& game);

}  // namespace varnstride
