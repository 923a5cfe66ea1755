// One reach computation serves all: what is lit is a legal target of the unit in hand, a leader's
// command radius, what a unit sees, or what a gun can shell, by the Action Points it is given.
#pragma once

#include "model/game.h"

namespace varnstride {

// Lights what the unit in hand reaches from the area of selectedCell. With rangeKeepLit it adds to
// what is lit, otherwise the rest of the map is shaded. Sets moveCost to 1 when the unit has Action
// Points. Nothing happens when selectedCell lies in no area.
void ShadeReach(Game& game);

// The same with the Action Points of the unit in hand held at another number meanwhile.
void ShadeReachWith(Game& game, int actionPoints);

}  // namespace varnstride
