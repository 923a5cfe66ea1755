// Orders to the unit in hand that are no moves: making ready for a charge, Double Time, Hold.
#pragma once

#include "model/game.h"

namespace varnstride {

// The next right click is the target of the charge; a left click takes the order back.
void PrepareCavalryCharge(Game& game);
void PrepareBayonetCharge(Game& game);

// A second Action Point for drilled infantry, at the price of a Command Point.
void DoubleTime(Game& game);

// The unit stays and fights better for it.
void HoldUnit(Game& game);

}  // namespace varnstride
