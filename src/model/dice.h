// Dice. A plain die is thrown once and forgotten; a logged value passes through the roll log, so
// that a turn sent by e-mail can be played through again with the same results.
#pragma once

#include "model/game.h"

namespace varnstride {

// A whole number from 0 to sides - 1.
int Die(Game& game, int sides);

// Records the value, or gives the recorded one back, while the log runs in play by e-mail;
// otherwise the value itself.
int LoggedValue(Game& game, int value);

// A die whose throw is logged.
int LoggedDie(Game& game, int sides);

// Whether a logged die shows that face.
bool LoggedDieShows(Game& game, int sides, int face);

// How many of so many plain dice show 1; the count is logged, the dice are not.
int LoggedOnes(Game& game, int dice, int sides);

}  // namespace varnstride
