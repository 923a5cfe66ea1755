// What the tactics and the responses to them are called, by number.
#pragma once

#include <array>
#include <string_view>

namespace varnstride {

constexpr std::array<std::string_view, 10> kTacticNames = {
    "Hold Attack (Ranged fire) ", "Frontal Attack ",       "Frontal Assault ",
    "Coordinated Advance ",       "Flank Attack ",         "Cavalry Charge ",
    "Artillery Bombardment ",     "Infantry Only Advance", "Light Infantry Skirmish ",
    "Cavalry Swarm Attack ",
};

constexpr std::array<std::string_view, 10> kResponseNames = {
    "Hold the Line ",
    "Frontal Attack ",
    "Frontal Assault ",
    "Withdraw Slowly ",
    "Refuse Flank ",
    "Artillery Fire Only ",
    "Cavalry Counter Charge ",
    "Light Infantry Skirmish ",
    "Infantry form Square or already in Square ",
    "Defender Routed - no Tactical Response ",
};

}  // namespace varnstride
