// The tallies of what each side has lost.
#pragma once

#include "model/game.h"

namespace varnstride {

// Books strength points lost by a unit of the army, each worth so much.
void BookLoss(Game& game, int army, int strengthPoints, int valueOfUnit);

}  // namespace varnstride
