#include "actions/reinforcements.h"

#include "actions/courier.h"
#include "actions/entry.h"
#include "actions/sides.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool ArrivesByDie(Game& game, const Unit& unit) {
    const int worse = unit.quality < Quality::Militia ? 0 : 1;
    return Die(game, 10) + worse <= unit.arrivalChance / 10;
}

void Enter(Game& game) {
    GameState& state = game.state;
    state.placingReinforcement = true;
    state.selectedCell = state.targetCell = game.InHand().Place();
    ShadeReachWith(game, 0);
    game.person->Redraw(View::CentreOnSelected);
    MoveIntoTargetArea(game);
    if (state.moveResult > 0) {
        state.reinforcementsArrived = 1;
    } else {
        game.InHand().arrivalTurn = state.gameTurn + 1;
    }
    state.placingReinforcement = false;
}

void Delay(Game& game) {
    game.InHand().arrivalTurn = game.state.gameTurn + 1;
    if (HumanOrOpenMap(game)) ShowCourier(game, 243);
}

}  // namespace

void ReleaseFixedUnits(Game& game) {
    for (int index : UnitIndices(game)) {
        const UnitId id{game.state.currentArmy, index};
        Unit& unit = game.At(id);
        if (!IsOnMap(game, id) || game.state.gameTurn > unit.fixedUntilTurn) continue;
        game.state.selectedCell = unit.Place();
        SelectArea(game);
        if (EnemyPresent(game)) unit.fixedUntilTurn = 0;
    }
}

void ArriveReinforcements(Game& game) {
    GameState& state = game.state;
    state.reinforcementsArrived = 0;
    for (int index : UnitIndices(game)) {
        const Unit& unit = game.At({state.currentArmy, index});
        if (unit.strength <= 0 || unit.arrivalTurn != state.gameTurn) continue;
        state.selectedSlot = 1;
        state.currentUnit = index;
        if (ArrivesByDie(game, unit)) {
            Enter(game);
        } else {
            Delay(game);
        }
    }
}

}  // namespace varnstride
