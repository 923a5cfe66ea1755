// The report at the head of a player's turn: routed, shaken and unsteady units, arrivals, releases
// and the army's morale.
#pragma once

#include "model/game.h"

namespace varnstride {

// Shows the report of the army in play. It does more than show: units whose turn of release has
// come may move.
void ShowCommandReport(Game& game);

}  // namespace varnstride
