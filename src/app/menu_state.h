// Which items of the menus bear a check mark and which are greyed, by the state of the game.
#pragma once

#include "model/game.h"

namespace varnstride {

// Whether the check-mark or radio item of that number is on; false for any other.
bool IsMenuItemChecked(const Game& game, int id);

// Whether the item can be picked now.
bool IsMenuItemEnabled(const Game& game, int id);

}  // namespace varnstride
