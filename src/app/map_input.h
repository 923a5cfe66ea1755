// The mouse on the map and on the unit panels: a left click picks, a right click orders.
#pragma once

#include "model/game.h"

namespace varnstride {

// A left click on the hex, jump map closed. The cell is held inside the playable grid.
void OnLeftClick(Game& game, Cell cell);

// A right click on the hex.
void OnRightClick(Game& game, Cell cell);

// A left click on unit panel 1, 2 or 3.
void OnPanelClick(Game& game, int panel);

// A press of tactical card button 1, 2 or 3.
void OnCardStripPress(Game& game, int card);

// Takes the units of the area in hand into the panels and the chosen one in hand: the selection
// that the panels make, whether they are shown or hidden.
void ShowUnitPanels(Game& game);

}  // namespace varnstride
