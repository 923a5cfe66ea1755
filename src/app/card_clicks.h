// The event card that waits for a unit or an area, and the clicks that lay it there. A card that
// acted on the press of its picture waits too, and is put away by the first of these clicks.
#pragma once

#include "model/game.h"

namespace varnstride {

// Lays the card on the unit in own slot 1, 2 or 3 of the area in hand; one for areas falls on the
// whole area. On an empty slot the card is lost. A refused card goes on waiting.
void ApplyCardToSlot(Game& game, int slot);

// Lays the card on the lone unit of the area of selectedCell; one for areas falls on every unit
// there, and goes on waiting when there is none. The area becomes the one in hand.
void ApplyCardToArea(Game& game);

}  // namespace varnstride
