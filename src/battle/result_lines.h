// The list of the result box: which causes were in play, as the attack leaves them.
#pragma once

#include <string>
#include <vector>

#include "model/game.h"

namespace varnstride {

std::vector<std::string> ResultLines(const Game& game);

}  // namespace varnstride
