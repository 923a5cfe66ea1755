// The seven armies of the records. Army 0 is the French side, every other army is Allied.
#pragma once

#include <array>
#include <cstdint>

namespace varnstride {

constexpr int kArmyCount = 7;

constexpr int kFrench = 0;
constexpr int kBritish = 1;
constexpr int kAustrian = 2;
constexpr int kPrussian = 3;
constexpr int kRussian = 4;
constexpr int kSpanish = 5;
constexpr int kLastPlayingArmy = kSpanish;  // army 6 is stored and looped over, never played

enum class Side { French, Allied };

constexpr Side SideOf(int army) {
    return army == kFrench ? Side::French : Side::Allied;
}
constexpr Side Opposing(Side side) {
    return side == Side::French ? Side::Allied : Side::French;
}

struct ArmyRecord {
    int present = 0;
    std::array<std::uint8_t, 28> reservedArmyBytes{};
    int baseCommandPoints = 0;
    int commandControl = 0;  // army 0's value alone counts
    int commandPoints = 0;
    int hasGroupAssignments =
        0;  // army 0: the file holds briefings; each army: its own can be read
};

}  // namespace varnstride
