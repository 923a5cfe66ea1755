// One number carries the weather: visibility, in units of 20 metres. It is worked out once a game
// turn from the chances of rain and cloud, a held fog, and the hour.
#pragma once

#include "model/game.h"

namespace varnstride {

// The clock after half an hour's steps: a fraction beyond 0.46 is the next whole hour, 24 is 0.
double NormalisedClock(double hours);

// The weather of a new game turn, seen from the hour of the turn just played.
void AdvanceWeather(Game& game);

}  // namespace varnstride
