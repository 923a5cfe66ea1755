// The event cards: at the head of a player turn one is drawn from the deck of the army in play and
// shown to whoever plays it. What the cards do is in event_card_table.h; the start of the turn
// asks.
#pragma once

#include "model/game.h"

namespace varnstride {

// Throws for the card of the turn, which becomes eventCard. On a battlefield that has no deck for
// the army no die is thrown and the card stays as it is.
void DrawEventCard(Game& game);

// Shows the picture of eventCard, be it a card, the weather or blank, until the person presses it;
// then the card does what it does on the press.
void ShowEventCard(Game& game);

// Ends the effects that last one turn.
void ClearCardEffects(Game& game);

}  // namespace varnstride
