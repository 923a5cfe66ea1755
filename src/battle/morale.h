// The nerve of units: the test at a moment of stress, and the pass at the end of every game turn
// that rallies, rests and resets, and in which routed units melt away.
#pragma once

#include "model/game.h"

namespace varnstride {

// Tests the unit in hand against the opposing unit (targetArmy, targetUnit; none outside an
// attack). For a test of the target the two have changed places, with defenderTested 1. The caller
// sets moraleHeld to 1; a failure clears it and may cost status, morale and formation.
void MoraleTest(Game& game);

// All units of all armies at the end of a game turn. currentArmy and currentUnit are loop variables
// here; the caller restores them.
void RunEndTurnMorale(Game& game);

}  // namespace varnstride
