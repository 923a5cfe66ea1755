// The searches of the model done the plain way: every cell of the grid against every area that is
// linked, every record of the army against the slot. The benchmarks tell how much faster the model
// is, a test that both agree on random states. No part of the game calls this.
#pragma once

#include <vector>

#include "model/game.h"

namespace varnstride {

// What ShadeReach lights, written into the shade of every cell by rows; the last column is left
// alone. The areas reached. Nothing is written when selectedCell lies in no area.
std::vector<int> ScanReach(const Game& game, std::vector<int>& shade);

// What UnitStandingAt answers while no unit that is due this turn waits for its placing.
UnitId ScanForUnitAt(const Game& game, Cell cell);

// What FindEnemyInSlot answers.
int ScanForEnemyInSlot(const Game& game, Cell cell);

// What CensusEnemy finds; nothing when selectedCell lies in no area. The army looked at, -1 none.
int ScanCensusEnemy(const Game& game, Census& census);

// What CensusOwnAtTarget finds; nothing when targetCell lies in no area.
void ScanCensusOwn(const Game& game, Census& census);

// What FindAdvanceCell finds in a grid of that shade.
Cell ScanAdvanceCell(const Game& game, const std::vector<int>& shade);

}  // namespace varnstride
