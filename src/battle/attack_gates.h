// What an attack must pass before it goes in: the arms, the weather, the nerve of horse.
#pragma once

#include "model/game.h"

namespace varnstride {

// Whether the unit in hand attacks its target at all; attackGoes. Says why not.
void TestTheGates(Game& game);

// Horse is tested before contact, whether or not the gates have stopped it: a failure stops it. A
// routed target frightens nobody.
void TestNerveOfHorse(Game& game);

}  // namespace varnstride
