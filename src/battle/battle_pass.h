// The fighting at the end of a player turn: every area that both sides share.
#pragma once

#include "model/game.h"

namespace varnstride {

// Walks all areas in their battle order for the army that has just played.
void RunBattlePass(Game& game);

}  // namespace varnstride
