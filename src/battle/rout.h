// The end of a beaten unit: the routed run from the area, and those without heart left surrender.
#pragma once

#include "model/game.h"

namespace varnstride {

// Every routed enemy of the target's area runs under fire, the way that the victor makes for. For
// a target that is routed; a barrage drives nobody out.
void RunTheRouted(Game& game);

// A target with strength but no morale left gives itself up to foot or horse of the attacker's
// army in its area.
void TakeSurrender(Game& game);

}  // namespace varnstride
