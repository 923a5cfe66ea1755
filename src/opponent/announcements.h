// What the computer shows of its turn. With fog of war on a player sees nothing but its attacks.
#pragma once

#include "model/game.h"

namespace varnstride {

// Tells whose turn it is and waits.
void AnnounceTurn(Game& game);

// Whether the computer's moves are shown.
bool MovesAreShown(const Game& game);

// Shows the dispatch of a code with the cell of the unit in hand lit up and the view on it.
void Announce(Game& game, int code);
// The same when moves are shown.
void AnnounceIfShown(Game& game, int code);

// When moves are shown, brings the unit in hand into view.
void ShowUnitInHand(Game& game);

}  // namespace varnstride
