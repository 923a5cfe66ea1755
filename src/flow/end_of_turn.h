// The end of a player turn: battles, the next army, and at the end of the circle a new game turn.
#pragma once

#include "model/game.h"

namespace varnstride {

// All steps in one pass.
void RunEndOfTurn(Game& game);

// The opening of a turn that the other player has finished by e-mail: his battles are played again
// from the log, then the next army's turn starts.
void ResumeMailedTurn(Game& game);

}  // namespace varnstride
