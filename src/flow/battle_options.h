// The two dialogs of options that a load may open: Scenario Options at a new battle, Options at a
// battle resumed in local play.
#pragma once

#include "model/game.h"

namespace varnstride {

void AskScenarioOptions(Game& game);
void AskOptions(Game& game);

}  // namespace varnstride
