// The tables of the exchange of plans.
#pragma once

#include <array>
#include <string_view>

#include "resources/dialog_ids.h"

namespace varnstride {

constexpr int kAdvantageOverRouted = 4;

// Advantage by tactic (row) and response 0 to 8 (column).
constexpr int kAdvantage[10][9] = {
    // 0   1   2  3  4   5   6   7   8
    {0, -1, 0, 0, 0, -2, -3, -1, 0},   // hold attack
    {-1, 0, 1, 0, 0, 2, -2, 1, 2},     // frontal attack
    {-2, -1, 0, 2, 1, 2, -3, -1, -1},  // frontal assault
    {0, -1, -1, 0, 1, 2, -2, 1, 2},    // coordinated advance
    {1, 1, 1, 2, 0, -1, -2, 1, 1},     // flank attack
    {2, 2, 2, 1, 0, 0, 0, 2, -1},      // cavalry charge
    {0, -1, -2, 2, 1, 0, -3, 1, 4},    // artillery bombardment
    {0, -1, 1, 0, 0, -2, -3, 0, 2},    // infantry only advance
    {-1, -1, 1, 1, 1, 1, -3, -1, 1},   // light infantry skirmish
    {2, 2, 2, 1, 0, -1, 3, 1, -1},     // cavalry swarm attack
};

// A set of arms as bits.
enum Arms : unsigned { kNoArms = 0, kLine = 1, kCavalry = 2, kGuns = 4, kLight = 8 };

constexpr unsigned Responses(std::initializer_list<int> responses) {
    unsigned bits = 0;
    for (int response : responses)
        bits |= 1U << response;
    return bits;
}

// Responses that the defender's arms cannot give; he then holds the line.
struct ImpossibleResponses {
    unsigned arms;
    unsigned responses;
};

constexpr std::array<ImpossibleResponses, 10> kImpossible = {{
    {kLine, Responses({5, 6})},
    {kCavalry, Responses({1, 2, 5, 7})},
    {kGuns, Responses({0, 1, 2, 3, 4, 6, 7})},
    {kLight, Responses({1, 2, 5, 6})},
    {kLine | kCavalry, Responses({5})},
    {kLine | kGuns, Responses({6})},
    {kLine | kLight, Responses({5, 6})},
    {kCavalry | kGuns, Responses({1, 2, 7})},
    {kCavalry | kLight, Responses({1, 2, 5})},
    {kGuns | kLight, Responses({0, 1, 2, 4, 6})},
}};

// A tactic offered, and the arms that lead with it; kNoArms leaves them as they are.
struct OfferedTactic {
    int tactic;
    unsigned leads;
};

// The dialog by the attacker's arms.
struct TacticsDialog {
    unsigned arms;
    int templateId;
    std::string_view caption;
    int count;
    std::array<OfferedTactic, 7> offers;
};

constexpr std::array<TacticsDialog, 13> kTacticsDialogs = {{
    {kLight,
     kLightTactics,
     "Light Infantry Tactics",
     6,
     {{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {7, 0}, {8, 0}, {}}}},
    {kLine | kLight,
     kLightTactics,
     "Light Infantry Tactics",
     6,
     {{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {7, 0}, {8, 0}, {}}}},
    {kCavalry,
     kCavalryTactics,
     "Cavalry Only Tactics",
     4,
     {{{3, 0}, {4, 0}, {5, 0}, {9, 0}, {}, {}, {}}}},
    {kLine,
     kLineTactics,
     "Line Infantry Only Tactics",
     5,
     {{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {7, 0}, {}, {}}}},
    {kLine | kCavalry,
     kLineCavalryTactics,
     "Line Infantry & Cavalry Tactics",
     5,
     {{{1, kLine}, {2, kLine}, {3, kLine}, {4, kCavalry}, {5, kCavalry}, {}, {}}}},
    {kGuns | kLight,
     kLightGunsTactics,
     "Light Infantry and Artillery Tactics",
     2,
     {{{6, kGuns}, {8, kLight}, {}, {}, {}, {}, {}}}},
    {kLine | kGuns,
     kLineGunsTactics,
     "Line Infantry and Artillery Tactics",
     6,
     {{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {6, kGuns}, {7, 0}, {}}}},
    {kCavalry | kGuns,
     kCavalryGunsTactics,
     "Cavalry and Artillery Tactics",
     2,
     {{{5, kCavalry}, {6, kGuns}, {}, {}, {}, {}, {}}}},
    {kCavalry | kLight,
     kLightCavalryTactics,
     "Light Infantry and Cavalry",
     3,
     {{{3, kCavalry}, {5, kCavalry}, {8, kLight}, {}, {}, {}, {}}}},
    {kLine | kCavalry | kGuns,
     kAllArmsTactics,
     "Tactics",
     7,
     {{{1, kLine}, {2, kLine}, {3, kLine}, {4, kCavalry}, {5, kCavalry}, {6, kGuns}, {7, kLine}}}},
    {kLine | kCavalry | kLight,
     kLineCavalryLightTactics,
     "Tactics",
     7,
     {{{1, kLine}, {2, kLine}, {3, kLine}, {4, kCavalry}, {5, kCavalry}, {7, kLine}, {8, kLight}}}},
    {kLine | kGuns | kLight,
     kLineGunsLightTactics,
     "Tactics",
     7,
     {{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {6, kGuns}, {7, 0}, {8, kLight}}}},
    {kCavalry | kGuns | kLight,
     kCavalryGunsLightTactics,
     "Tactics",
     5,
     {{{3, kLight}, {4, kCavalry}, {5, kCavalry}, {6, kGuns}, {8, kLight}, {}, {}}}},
}};

// The picture buttons by tactic; the button of tactic 2 stands for 9 in the cavalry's dialog.
constexpr std::array<int, 10> kTacticButtons = {0,    1647, 1071, 1648, 1649,
                                                1651, 1650, 1652, 1656, 1071};

}  // namespace varnstride
