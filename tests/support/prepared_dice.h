// Dice that fall as a test wants them, by choosing where the game's generator stands.
#pragma once

#include <cstdint>
#include <vector>

#include "model/game.h"

namespace varnstride {

struct DieThrow {
    int sides;
    int face;  // 0 to sides - 1
};

// The next throws of the game come out like this. Returns the generator's state behind them, where
// it stands when these dice were thrown and no others. No more than four or five dice, or the
// search for them takes long; fails the test when it ends without.
std::uint32_t PrepareDice(Game& game, const std::vector<DieThrow>& throws);

}  // namespace varnstride
