// Two lists of the menu Status: every unit of the army in play by its organisation, and the units
// of all armies that were led off the field.
#pragma once

#include "model/game.h"

namespace varnstride {

void ShowArmyUnitListing(Game& game);
void ShowRemovedUnits(Game& game);

}  // namespace varnstride
