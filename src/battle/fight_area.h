// The battle of one area at the end of a player turn: who takes part, what the two sides plan, and
// the attacks that come of it.
#pragma once

#include "model/game.h"

namespace varnstride {

// Fights over the area in hand (currentAreaSlots and ownSlotsFilled) for the army in play.
void FightArea(Game& game);

}  // namespace varnstride
