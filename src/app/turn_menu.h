// The Turn menu: ending a turn, taking an order back, starting a local battle, and giving up what
// waits for a target.
#pragma once

#include "model/game.h"

namespace varnstride {

void EndTurnByPlayer(Game& game);

void UndoByCommand(Game& game);
void UndoByKey(Game& game);

// Do Battle: the next left click picks the area.
void PrepareLocalBattle(Game& game);

void CancelEventCard(Game& game);
void CancelEventCardByKey(Game& game);
// Puts the aimed gun's Action Points back.
void CancelBarrage(Game& game);
void CancelLocalBattle(Game& game);
// Everything that waits for a target, the charge order of the unit in hand included.
void CancelAction(Game& game);

}  // namespace varnstride
