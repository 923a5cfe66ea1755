// Leading a unit off the field at an exit of its army.
#pragma once

#include "model/game.h"

namespace varnstride {

// The objective value that marks the exits of an army.
int ExitValueOf(int army);

// Leads the unit in hand off when its area has an exit of its army and no enemy; its worth counts
// for its own side. Otherwise a refusal sounds. Whether it left.
bool RemoveFromMap(Game& game);

}  // namespace varnstride
