// The tests that stand before an order, and what the player hears when one fails. A refusal stops
// nothing by itself: an order is carried out only when everything that it needs holds.
#pragma once

#include <string_view>

#include "model/game.h"

namespace varnstride {

// Whether the army in play has Command Points; without any the player is told.
bool HasCommandPoints(Game& game);

// Whether orders can still be given this turn.
bool IsTurnOpen(const Game& game);

// Whether a unit on the map has been chosen from its area.
bool HasUnitInHand(const Game& game);

// The refusal sound, then a message.
void Refuse(Game& game, std::string_view caption, std::string_view text);

// The toggle buttons of the toolbar come up.
void ReleaseButtons(Game& game);

}  // namespace varnstride
