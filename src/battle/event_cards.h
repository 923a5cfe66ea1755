// The event cards: one is drawn at the head of each player turn.
#pragma once

#include "model/game.h"

namespace varnstride {

// Draws the card of the turn and shows it.
void DrawEventCard(Game& game);

// The effects that last one turn.
void ClearCardEffects(Game& game);

}  // namespace varnstride
