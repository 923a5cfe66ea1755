// Taking a unit in hand: the selection that the three unit panels make, whether they are shown or
// hidden.
#pragma once

#include "model/game.h"

namespace varnstride {

// Goes through the units of the area of selectedCell slot by slot, as the panels show them, and
// takes the one of selectedSlot in hand: currentUnit, roadMover. A unit that stands alone is taken
// at once. selectedCell is left on the last slot shown.
void ShowUnitPanels(Game& game);

// leavingContact is set when the unit in hand is foot and the enemy stands in its area: its next
// move costs a second Command Point.
void MarkLeavingContact(Game& game);

}  // namespace varnstride
