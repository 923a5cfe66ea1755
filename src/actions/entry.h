// Entry into an area: the only way onto a slot. Orders, reinforcements, detachments, retreats,
// routs and the computer's units all come through here.
#pragma once

#include "model/game.h"

namespace varnstride {

// Brings the unit in hand into the area of targetCell. Its old slot must have been vacated; the
// caller reclaims it when moveResult is 0 afterwards, and closes up the area left when it is above.
// Nothing happens while selectedSlot is 0.
void MoveIntoTargetArea(Game& game);

// The same with the six slots given.
void EnterArea(Game& game, const AreaSlots& slots);

}  // namespace varnstride
