// A battle boiled down to one number, so that thousands of positions can be compared with a single
// figure of another build.
#pragma once

#include <cstdint>

#include "model/game.h"

namespace varnstride {

constexpr std::uint64_t kHashStart = 14695981039346656037ULL;

// The hash of the whole-game state, the generator, the roll log and all stored records, added to
// an earlier one. The same on every machine: fields enter as numbers, never as memory.
std::uint64_t HashOf(const Game& game, std::uint64_t earlier = kHashStart);

}  // namespace varnstride
