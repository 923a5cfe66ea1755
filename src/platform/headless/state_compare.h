// Names what differs between two battles, field by field: "army 3 unit 17 morale: 5, was 4".
#pragma once

#include <string>
#include <vector>

#include "model/game.h"

namespace varnstride {

// Every field of the whole-game state, the generator, the roll log and all stored records in which
// the game differs from what it was; nothing when the two are the same.
std::vector<std::string> Differences(const Game& now, const Game& was);

}  // namespace varnstride
