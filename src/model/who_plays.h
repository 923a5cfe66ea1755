// Which sides the computer plays, as Settings::computerSide and GameState::computerPlays tell it.
#pragma once

#include <optional>

#include "model/army.h"

namespace varnstride {

constexpr int kComputerPlaysFrench = 1;
constexpr int kComputerPlaysAllies = 2;
constexpr int kComputerPlaysBoth = 3;  // a duel; no file and no dialog holds it

// Whether the computer would play the side of that army.
constexpr bool IsComputerSide(int computerSide, int army) {
    if (computerSide == kComputerPlaysBoth) return true;
    return SideOf(army) == Side::French ? computerSide == kComputerPlaysFrench
                                        : computerSide == kComputerPlaysAllies;
}

// The side of the person who plays against the computer; nothing when persons play both sides, or
// none plays.
constexpr std::optional<Side> SideAgainstComputer(int computerSide) {
    if (computerSide == kComputerPlaysFrench) return Side::Allied;
    if (computerSide == kComputerPlaysAllies) return Side::French;
    return std::nullopt;
}

}  // namespace varnstride
