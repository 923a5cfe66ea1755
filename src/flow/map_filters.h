// The seven highlights of the map, by which a player finds his fixed, routed or other units. At
// most one is on; all go off with the next order and with the turn.
#pragma once

#include "model/game.h"

namespace varnstride {

void ClearHighlight(Game& game);  // in every cell

void SwitchFiltersOff(Game& game);

// Marks the cells of the units that pass the filter that is on.
void ApplyMapFilter(Game& game);

}  // namespace varnstride
