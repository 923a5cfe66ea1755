#include "actions/spotting.h"

#include "actions/sides.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kClearView = 20;

// How far the unit in hand sees, as the Action Points and formation of a move.
void TakeSpottingPace(const Game& game, Unit& unit) {
    if (HasFogOfWar(game)) unit.actionPoints = 1;
    if (game.header.fogNormal == 1 && game.header.visibility >= kClearView) {
        unit.formation = Formation::MarchColumn;
        unit.actionPoints = 2;
    }
    if (game.grid.At(unit.Place()).roadTile == kSmoke) unit.actionPoints = 0;
}

void SpotFromUnit(Game& game, int index) {
    game.state.currentUnit = index;
    Unit& unit = game.InHand();
    const int actionPoints = unit.actionPoints;
    const Formation formation = unit.formation;
    TakeSpottingPace(game, unit);
    game.state.selectedCell = unit.Place();
    ShadeReach(game);
    unit.actionPoints = actionPoints;
    unit.formation = formation;
}

void RevealLitUnits(Game& game, int army) {
    for (int index : UnitIndices(game)) {
        Unit& unit = game.At({army, index});
        if (IsOnMap(game, {army, index}) && game.grid.IsLit(unit.Place())) unit.visible = 1;
    }
}

}  // namespace

void SpotFromArmy(Game& game) {
    const int unitInHand = game.state.currentUnit;
    game.state.rangeKeepLit = true;
    for (int index : UnitIndices(game)) {
        if (IsOnMap(game, {game.state.currentArmy, index})) SpotFromUnit(game, index);
    }
    game.state.rangeKeepLit = false;
    game.state.currentUnit = unitInHand;
}

void SpotAfterMove(Game& game) {
    if (!HasFogOfWar(game) || !IsOnMap(game, game.InHandId())) return;
    const int moveCost = game.state.moveCost;
    game.state.selectedCell = game.InHand().Place();
    ShadeReachWith(game, 1);
    game.state.moveCost = moveCost;
    for (int army = 0; army < kArmyCount; ++army) {
        if (army != game.state.currentArmy && game.Army(army).present != 0) {
            RevealLitUnits(game, army);
        }
    }
}

}  // namespace varnstride
