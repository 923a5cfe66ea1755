// What a tactic is worth against the response that it meets.
#pragma once

#include <array>

namespace varnstride {

constexpr int kTactics = 10;
constexpr int kResponseRouted = 9;

// clang-format off
constexpr std::array<std::array<int, kTactics>, kTactics> kTacticalAdvantage = {{
    // hold   fr.assault refuse   counter-ch. square
    //    attack  withdraw  guns only  skirmish   routed
    {{  0,-1, 0, 0, 0,-2,-3,-1, 0, 4}},  // hold attack
    {{ -1, 0, 1, 0, 0, 2,-2, 1, 2, 4}},  // frontal attack
    {{ -2,-1, 0, 2, 1, 2,-3,-1,-1, 4}},  // frontal assault
    {{  0,-1,-1, 0, 1, 2,-2, 1, 2, 4}},  // coordinated advance
    {{  1, 1, 1, 2, 0,-1,-2, 1, 1, 4}},  // flank attack
    {{  2, 2, 2, 1, 0, 0, 0, 2,-1, 4}},  // cavalry charge
    {{  0,-1,-2, 2, 1, 0,-3, 1, 4, 4}},  // artillery bombardment
    {{  0,-1, 1, 0, 0,-2,-3, 0, 2, 4}},  // infantry only advance
    {{ -1,-1, 1, 1, 1, 1,-3,-1, 1, 4}},  // light infantry skirmish
    {{  2, 2, 2, 1, 0,-1, 3, 1,-1, 4}},  // cavalry swarm attack
}};
// clang-format on

// -3 to 4 for a tactic and a response of 0 to 9.
constexpr int TacticalAdvantageOf(int tactic, int response) {
    return kTacticalAdvantage[static_cast<std::size_t>(tactic)][static_cast<std::size_t>(response)];
}

}  // namespace varnstride
