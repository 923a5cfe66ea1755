// What enemies do in the area that a unit has just entered: the weak fall back, and horse may
// follow them.
#pragma once

#include "model/game.h"

namespace varnstride {

// The unit in hand stands in an area whose first enemy slot is held. Ends its move.
void SettleContact(Game& game);

// Infantry of good order forms Square before horse: the unit in hand is mounted and has entered an
// area with the enemy's first slot held. undoTargetFormation tells that it happened.
void ForceSquares(Game& game);

}  // namespace varnstride
