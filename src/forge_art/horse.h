// Cavalry, leaders and the teams of guns: riders on horses.
#pragma once

#include <string_view>
#include <vector>

#include "forge_art/troops.h"

namespace varnstride::art {

std::vector<Posted> PostHorse(const Studio& studio, const Troop& troop, int strength);
// A general with his aides, and the flag of his army.
std::vector<Posted> PostLeader(const Studio& studio, const Troop& general,
                               std::string_view aideUniform);

// A rider; horse is a colour of the palette without "horse.".
Tile RiderFigure(const Studio& studio, const Troop& troop, std::string_view gait,
                 std::string_view horse);

constexpr int kHorseFooting = 15;

}  // namespace varnstride::art
