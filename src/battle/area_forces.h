// Who stands in an area that is fought over: the counts of both sides on which tactics and attacks
// rest.
#pragma once

#include <vector>

#include "model/game.h"

namespace varnstride {

// Counts the enemy's fighting units slot by slot until the first empty slot, and makes their army
// the target.
void CountEnemyForces(Game& game);

// Finds the slots that can attack and the first that can lead: primaryCell, (0, 0) when none can.
void FindPrimaryCell(Game& game);

// The units that join in: their leadership and arms are summed up and they may fight in good order.
void GatherAttackers(Game& game);

// The records of the units that GatherAttackers takes, by rising index.
std::vector<int> Attackers(const Game& game);

}  // namespace varnstride
