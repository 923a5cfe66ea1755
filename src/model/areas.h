// The area in hand: looking it up, its own and enemy slots, and closing the gap that a unit leaves.
// Own and enemy are the sides of currentArmy. A look-up of a cell of no area changes nothing.
#pragma once

#include "model/game.h"

namespace varnstride {

// Takes the area of selectedCell in hand: its six slots and how far the own ones are filled. With
// a unit in the first own slot, selectedCell moves there.
void SelectArea(Game& game);
// The same for an area named by its ordinal, as the walks over all areas do.
void SelectAreaByOrdinal(Game& game, int ordinal);

// Loads only the own three slots of the area of selectedCell, and which of them are taken.
void LoadOwnSlots(Game& game);

// Stores six slots, with no other effect.
void SetAreaSlots(Game& game, const AreaSlots& slots);

// A side's slot of a list of six, from 0.
Cell SlotOf(const AreaSlots& slots, Side side, int slot);

Cell OwnSlot(const Game& game, int slot);    // of the area in hand, slot from 0
Cell EnemySlot(const Game& game, int slot);  // of the area in hand, slot from 0
inline Cell FirstOwnSlot(const Game& game) {
    return OwnSlot(game, 0);
}
inline Cell FirstEnemySlot(const Game& game) {
    return EnemySlot(game, 0);
}

// Whether any unit's mark stands in the cell.
bool IsHeld(const Game& game, Cell slot);
bool EnemyPresent(const Game& game);

// The army that the side opposing currentArmy shows in its first slot, by the slots given; -1 when
// that slot is empty.
int EnemyArmyOf(const Game& game, const AreaSlots& slots);

// The record of the fighting unit of the enemy army of the area in hand that stands in the cell;
// 0 when none does.
int FindEnemyInSlot(const Game& game, Cell cell);

// Moves the side's units towards the first slot of the area that a unit has just left, as
// LoadOwnSlots has left its slots.
void CloseUpArea(Game& game);

// LoadOwnSlots for the area of the cell, then CloseUpArea: what follows every move. selectedCell is
// left on the cell.
void CloseUpAreaLeft(Game& game, Cell left);

}  // namespace varnstride
