// Which armies have had the head of their turn in the game turn in hand, where the units that are
// due are placed. Told to FindStandingUnits when a battle is opened or a snapshot put back.
#pragma once

#include "model/game.h"

namespace varnstride {

// A bit (1 << army) for every present army from firstPlayer round the circle up to turnCursor.
unsigned ArmiesArrived(const Game& game);

}  // namespace varnstride
