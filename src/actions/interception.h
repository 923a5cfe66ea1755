// A move of two areas passes through a third; an enemy there stops it.
#pragma once

#include "model/game.h"

namespace varnstride {

// Looks at the area between those of selectedCell and targetCell. moveCost becomes 2 when there is
// one. With the enemy in its first slot the unit in hand loses its Action Points and is either
// turned into that area (stoppedShort, targetCell changes) or, with no slot free there, held where
// it stands (moveBlocked).
void CheckInterception(Game& game);

}  // namespace varnstride
