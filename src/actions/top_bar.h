// The strip over the map shows points and score; drawing it brings the score up to date.
#pragma once

#include "model/game.h"

namespace varnstride {

void DrawTopBar(Game& game);

}  // namespace varnstride
