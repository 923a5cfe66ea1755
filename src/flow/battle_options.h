// The two dialogs of options that a load may open: Scenario Options at a new battle, Options at a
// battle resumed in local play and by the command for the computer's side.
#pragma once

#include "model/game.h"

namespace varnstride {

// Asks for fog, command control, difficulty, clock, sides and the rules in use, and sets them.
void AskScenarioOptions(Game& game);

// Asks which side the computer plays and for the Stop Clock. Stays open while the army in play
// would be the computer's.
void AskOptions(Game& game);

}  // namespace varnstride
