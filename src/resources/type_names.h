// What the arms are called in the result of a battle, by the number of their type.
#pragma once

#include <array>
#include <string_view>

namespace varnstride {

constexpr std::array<std::string_view, 18> kTypeNames = {
    "",
    "Light Inf",
    "Line Inf",
    "Grenadiers / Guards",
    "Light Dragoons Dismounted",
    "Engineers",
    "Dragoons Dismounted",
    "Leader Unit ",
    "Light Cavalry",
    "Lancers",
    "Heavy Cav",
    "Medium Cav",
    "Cossack Cav",
    "Guard Cavalry",
    "Mortar Artillery",
    "Rocket Artillery",
    "Horse Artillery",
    "Field Artillery",
};

// Nothing for a type that does not fight.
constexpr std::string_view TypeNameOf(int type) {
    const auto index = static_cast<std::size_t>(type);
    return index < kTypeNames.size() ? kTypeNames[index] : std::string_view{};
}

// The attacker's label has its own spelling of the light cavalry.
constexpr std::string_view AttackerTypeNameOf(int type) {
    constexpr int kLightCavalry = 8;
    return type == kLightCavalry ? "Light Cavaly" : TypeNameOf(type);
}

}  // namespace varnstride
