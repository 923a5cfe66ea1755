// Lists of units from which one can be looked up on the map: what such a list is, and how its
// Locate button takes a unit in hand.
#pragma once

#include <string>
#include <vector>

#include "model/game.h"

namespace varnstride {

constexpr int kLocate = 1071;  // the button

// The lines of a list and the unit that each names; none for a line that names nobody.
struct UnitList {
    std::vector<std::string> lines;
    std::vector<UnitId> units;

    void Add(std::string line, UnitId unit);
    void AddEmptyLine() { Add({}, {}); }
};

// Shows a dialog with the list under that number, OK and Locate. The unit of the chosen line when
// the person wants it located, otherwise none.
UnitId AskWhichUnit(Game& game, Dialog dialog, int listId, const UnitList& list);

// Takes the unit in hand and lays down any gun's aim.
void TakeLocatedUnit(Game& game, UnitId unit);

// Lights no more than the area of the unit in hand.
void LightOwnArea(Game& game);

// Puts the cursor on the unit in hand and the view over it.
void ShowUnitOnMap(Game& game);

// Draws the unit panels again while orders are given.
void ShowPanelsInOrders(Game& game);

}  // namespace varnstride
