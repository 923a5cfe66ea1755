// The Reinforce menu: who is still to come and where, who came this turn, and who is held on the
// field until when.
#pragma once

#include "model/game.h"

namespace varnstride {

void ShowReinforcementSchedule(Game& game);
void ShowArrivedUnits(Game& game);
void ShowReleaseSchedule(Game& game);

}  // namespace varnstride
