// What a unit on the march sounds like.
#pragma once

#include "model/game.h"

namespace varnstride {

// The sound of the unit in hand after a move that went, and the top bar drawn again.
void PlayMoveSound(Game& game);

// What a player hears instead from a unit that reforms after a charge.
void PlayReformingSound(Game& game);

}  // namespace varnstride
