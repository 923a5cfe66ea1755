#include "support/prepared_dice.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnstride {

std::uint32_t PrepareDice(Game& game, const std::vector<DieThrow>& throws) {
    constexpr std::uint32_t kSeeds = 10'000'000;
    for (std::uint32_t seed = 1; seed < kSeeds; ++seed) {
        game.generator.Seed(seed);
        Generator sequence = game.generator;
        if (std::all_of(throws.begin(), throws.end(), [&](const DieThrow& die) {
                return sequence.Next() % die.sides == die.face;
            })) {
            return sequence.State();
        }
    }
    ADD_FAILURE() << "no seed gives such dice";
    return 0;
}

}  // namespace varnstride
