// The river of Wavre: crossing it out of column costs a unit its order.
#pragma once

#include "model/game.h"

namespace varnstride {

// On map 8, a unit in hand whose last and present slots lie on the two sides of a crossing becomes
// disrupted and loses its formation.
void CheckMap8Crossing(Game& game);

}  // namespace varnstride
