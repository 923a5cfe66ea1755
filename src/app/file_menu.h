// The File menu: opening a scenario, saving, leaving.
#pragma once

#include "model/game.h"

namespace varnstride {

// Ends the battle in hand without a question and starts a scenario.
void OpenScenario(Game& game);

// Saves under the name that the battle has, or tells the player to give it one.
void Save(Game& game);

// Asks, saves when Auto Save is on, and ends the program.
void Exit(Game& game);

// What Auto Save does when the player ends his turn.
void AutoSaveTurn(Game& game);

}  // namespace varnstride
