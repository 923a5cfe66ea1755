#include "app/locate_unit.h"

#include <utility>

#include "actions/unit_in_hand.h"
#include "battle/barrage.h"
#include "model/reach.h"

namespace varnstride {

void UnitList::Add(std::string line, UnitId unit) {
    lines.push_back(std::move(line));
    units.push_back(unit);
}

UnitId AskWhichUnit(Game& game, Dialog dialog, int listId, const UnitList& list) {
    dialog.AddList(listId, list.lines);
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kLocate, "Locate");
    game.person->Ask(dialog);
    const int line = dialog.At(listId).value;
    if (dialog.closedBy != kLocate || line < 0) return {};
    return list.units[static_cast<std::size_t>(line)];
}

void TakeLocatedUnit(Game& game, UnitId unit) {
    LayAimDown(game);
    game.state.currentUnit = unit.index;
}

void LightOwnArea(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    ShadeReachWith(game, 0);
}

void ShowUnitOnMap(Game& game) {
    constexpr int kMilliseconds = 100;
    const Cell place = game.InHand().Place();
    game.state.selectedCell = place;
    for (PlayCell& cell : game.grid.PlayCells())
        cell.selected = 0;
    if (game.grid.Holds(place)) game.grid.At(place).selected = 1;
    game.person->Redraw(View::CentreOnSelected);
    if (game.settings.noDelays != 1 && game.settings.noReplay != 1) {
        game.person->Pause(kMilliseconds);
    }
}

void ShowPanelsInOrders(Game& game) {
    const bool orders = game.state.turnPhase == TurnPhase::Orders;
    if (orders && game.state.battlePassRunning == 0) ShowUnitPanels(game);
}

}  // namespace varnstride
