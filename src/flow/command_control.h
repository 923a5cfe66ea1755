// Which units a commander reaches this turn.
#pragma once

#include "model/game.h"

namespace varnstride {

// Marks the units of the army in play as in or out of command and takes the points of those that
// nobody leads.
void ApplyCommandControl(Game& game);

// Works out inCommand again for the map filter: leaders and routed units alone count.
void MarkCommandRange(Game& game);

}  // namespace varnstride
