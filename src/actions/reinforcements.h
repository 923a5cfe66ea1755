// Units that come to the field, and units that are held on it.
#pragma once

#include "model/game.h"

namespace varnstride {

// Frees the held units of the army in play in whose area the enemy stands.
void ReleaseFixedUnits(Game& game);

// Brings in the units of the army in play that are due this turn, each by its die and while its
// entry area has room; the others try again next turn. Sets reinforcementsArrived.
void ArriveReinforcements(Game& game);

}  // namespace varnstride
