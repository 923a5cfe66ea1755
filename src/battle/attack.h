// One attack: a unit of the army in turn against an enemy unit of the same area.
#pragma once

#include "model/game.h"

namespace varnstride {

// Sets terrainDefence, 0 to 4, for the area in hand.
void ComputeTerrainDefence(Game& game);

// Fights one attack. The caller has filled the area's slots, the enemy's units and primaryCell.
void ResolveAttack(Game& game);

}  // namespace varnstride
