// Orders that restore a unit: ammunition from a friend nearby, and rallying the shaken and routed.
#pragma once

#include "model/game.h"

namespace varnstride {

// Fills the ammunition of the unit in hand for the rest of its turn, when a friend stands within
// one area. Whether it was supplied.
bool ResupplyUnit(Game& game);

// Rallies the unit in hand, which is shaken and has no enemy in its area.
void RallyShaken(Game& game);

// Throws for the unit in hand, which is routed.
void RallyRouted(Game& game);

// What a rally makes of a unit, whoever orders it: more morale, a better status, no Action Points.
// A routed one needs a throw, 1 to so many, and full morale; whether it rallied.
void RestoreShaken(Unit& unit);
bool TryToRestoreRouted(Unit& unit, int throwOfNerve);

// Raises a shaken or routed unit by one status, with the morale that goes with it.
void RallyOneStep(Unit& unit);

// The unit in hand takes order again, foot in Line and horse in Attack Column, unless its area is
// built up.
void TakeOrderAgain(Game& game);

}  // namespace varnstride
