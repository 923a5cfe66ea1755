// Saving a battle. A scenario is never written over: its first save asks for a name.
#pragma once

#include "model/game.h"

namespace varnstride {

// Writes to the file in hand and says so; a failure is told and the game goes on.
void SaveBattleFile(Game& game);

// Asks for a file first. A name without an extension gets that of the game mode. A file that could
// not be written does not become the file in hand.
void SaveBattleFileAs(Game& game);

}  // namespace varnstride
