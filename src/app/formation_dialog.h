// The Formation Change command: its refusals, its dialog and what becomes of the answer.
#pragma once

#include "model/game.h"

namespace varnstride {

void ChangeFormationByCommand(Game& game);
void ChangeFormationByKey(Game& game);

}  // namespace varnstride
