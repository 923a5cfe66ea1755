// When a battle ends, and what the player hears of it.
#pragma once

#include "model/game.h"

namespace varnstride {

// After the last turn: tells the result and ends the battle, unless a draw goes on for another turn
// by chance or the player goes on.
void TestForEnd(Game& game);

// No order can be given any more and both sides see everything.
void OpenMapForGood(Game& game);

// Tells the player of a finished turn by e-mail to save it.
void AskForSave(Game& game);

}  // namespace varnstride
