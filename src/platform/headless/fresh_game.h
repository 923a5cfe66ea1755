// A program at its start screen, as the driver and the random games begin.
#pragma once

#include "model/game.h"

namespace varnstride {

// What a program starts with that reads no settings.
Settings HeadlessSettings();

Game FreshGame(const AtlasCatalogue& atlases, Person& person, const Settings& settings);

}  // namespace varnstride
