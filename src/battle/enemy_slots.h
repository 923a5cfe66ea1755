// The enemy of an area slot by slot, and whom of them an attacker goes for.
#pragma once

#include "model/game.h"

namespace varnstride {

// From the area in hand: targetArmy, enemySlotUnit and enemySlotsFilled. The walk ends at the first
// slot without a fighting unit.
void FillEnemySlots(Game& game);

// The target of the unit in hand among the enemySlotUnit: targetUnit, 0 when there is none.
void PickTarget(Game& game);

}  // namespace varnstride
