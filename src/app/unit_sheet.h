// The unit sheet, opened by a right click on a unit panel: what a player knows of his unit beyond
// the figures of the panel.
#pragma once

#include "model/game.h"

namespace varnstride {

// Shows the sheet of the unit in hand.
void ShowUnitSheet(Game& game);

}  // namespace varnstride
