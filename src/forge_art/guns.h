// Batteries: guns with their crews, foot or horse.
#pragma once

#include <vector>

#include "forge_art/troops.h"

namespace varnstride::art {

// One gun for each point of strength.
std::vector<Posted> PostGuns(const Studio& studio, const Troop& troop, int strength, bool mounted);

}  // namespace varnstride::art
