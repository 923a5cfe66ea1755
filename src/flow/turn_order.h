// The circle of the armies, the game clock and the words that tell both.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride {

// turnCursor goes to the next present army of the circle 0 to 5.
void AdvanceTurnCursor(Game& game);

// The next game turn: its number, half an hour on the clock.
void StartNewGameTurn(Game& game);

// The lines of the information bar: "Game Turn : 3  of  9+ ", and the time as hours x 100.
std::string TurnText(const Game& game);
int TimeShown(const Game& game);

}  // namespace varnstride
