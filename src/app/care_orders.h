// Commands that look after a unit: ammunition, rallying, leaving the field.
#pragma once

#include "model/game.h"

namespace varnstride {

void Resupply(Game& game);
void RallyAndReform(Game& game);
void LeaveMap(Game& game);

}  // namespace varnstride
