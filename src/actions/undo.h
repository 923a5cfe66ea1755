// Taking back a player's last order: one level, a move or a formation change.
#pragma once

#include "model/game.h"

namespace varnstride {

// Notes the unit in hand as it stands before a move or before a formation change.
void NoteMove(Game& game);
void NoteFormationChange(Game& game);

enum class UndoBy { Command, Key };

// Takes the noted order back, or says why not. The key takes back cavalry moves that the command
// refuses, and for a formation change leaves selection and shade alone.
void UndoLastOrder(Game& game, UndoBy by);

}  // namespace varnstride
