// What stands in an area, and which lit cell leads on: the searches that orders, retreats and the
// computer share.
#pragma once

#include "model/game.h"

namespace varnstride {

// Counts the enemy in the area of selectedCell. Exactly one enemy army is looked at, the one that
// shows in the enemy's first slot; with that slot empty all results are 0. targetArmy becomes the
// army counted, except inside an attack.
void CensusEnemy(Game& game);

// Counts the units of currentArmy in the own slots of the area of targetCell.
void CensusOwnAtTarget(Game& game);
// The same for an area named by its ordinal.
void CensusOwnOf(Game& game, int ordinal);

// The lit cell nearest to where the army of the unit in hand makes for, turned into the first slot
// of its side in that area: advanceResultCell, (0, 0) when nothing is found. selectedCell and
// targetCell are overwritten with it.
void FindAdvanceCell(Game& game);

}  // namespace varnstride
