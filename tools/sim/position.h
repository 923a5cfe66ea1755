// A saved position taken as it is, for looking at it rather than playing on.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride::sim {

// The position as it stands in the file, without what the opening of a battle does to it. Throws a
// Refusal for a file that cannot be read.
void OpenPosition(Game& game, const std::string& path);

}  // namespace varnstride::sim
