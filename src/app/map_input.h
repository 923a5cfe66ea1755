// The mouse on the map, on the unit panels and on the strip of tactical cards: a left click picks,
// a right click orders.
#pragma once

#include "model/game.h"

namespace varnstride {

// A left click on the hex; it closes the jump map. The cell is held inside the playable grid.
void OnLeftClick(Game& game, Cell cell);

// A left click on the open jump map, at the hex that it stands for: the view goes there.
void OnJumpMapClick(Game& game, Cell cell);

// A right click on the hex.
void OnRightClick(Game& game, Cell cell);

// A left click on unit panel 1, 2 or 3, or its number key: takes the unit of the slot in hand, and
// lays a waiting event card on it.
void OnPanelClick(Game& game, int panel);

// A right click on unit panel 1, 2 or 3: the sheet of its unit.
void OnPanelRightClick(Game& game, int panel);

// Takes the unit in own slot 1, 2 or 3 of the area in hand and lights its reach, as either button
// on a panel does.
void TakeSlotInHand(Game& game, int slot);

// A press of tactical card button 1, 2 or 3.
void OnCardStripPress(Game& game, int card);

}  // namespace varnstride
