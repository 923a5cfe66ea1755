// Commands that split, join and exchange units of an area.
#pragma once

#include "model/game.h"

namespace varnstride {

void DetachFormation(Game& game);
void RejoinDetachment(Game& game);
void RotateUnits(Game& game);

}  // namespace varnstride
