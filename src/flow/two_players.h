// Play by e-mail: the snapshots round the battle pass, the passwords, the first-turn hand-over;
// and the Stop Clock of any mode.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride {

// Keeps units, losses and marks as they stand before the battle pass, and the card effects in force
// at the head of the roll log.
void TakeBeforePass(Game& game);

// Round the writing of a finished turn: the state before the pass takes the place of the live one,
// and the live one comes back. Both do nothing without a snapshot of the battle in hand.
void ExchangeForSave(Game& game);
void PutBackAfterPass(Game& game);

// Whether this run has kept the state after the battle pass that the file just opened tells of.
bool HasAfterPass(const Game& game);

// Copies that state into the live one.
void RestoreAfterPass(Game& game);

// Asks for or sets the password of a file just opened; gameMode becomes Quit when it is declined.
void CheckPasswords(Game& game);

// Whether the person must hand the first turn to the other player; tells him, and the phase becomes
// HandOver.
bool HandOverFirstTurn(Game& game);

// One second of a player's turn; ends it when the time allowed is up. A finished turn has no clock.
void StopClockTick(Game& game);

// What the information bar shows of the clock: "Clock 2 mins 5 secs".
std::string StopClockText(const GameState& state);

}  // namespace varnstride
