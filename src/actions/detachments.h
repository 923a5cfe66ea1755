// Splitting a unit in two, joining the parts again, raising militia, and two units changing places.
#pragma once

#include "model/game.h"

namespace varnstride {

// The greatest detachment that the unit can give; 0 when it cannot split.
int LargestDetachment(const Unit& unit);

// Splits the unit in hand, which stands alone on its side of its area. A person is asked for the
// size, the computer takes what is usual for the arm. Nothing happens without a free record; a
// detachment that finds no way into the area is taken back.
void DetachUnit(Game& game);

// The unit in hand takes in another of its army, whose record becomes free. They must be of one
// organisation and one type.
void JoinUnits(Game& game, UnitId other);

// Adds a militia unit to the army in play at its place of the map, if there is one and it has room.
void RaiseMilitia(Game& game);

// Lets two units of the army in play change places; the unit's own slots must be loaded.
void SwapUnits(Game& game, UnitId one, UnitId other);

}  // namespace varnstride
