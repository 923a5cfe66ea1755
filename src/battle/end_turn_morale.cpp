#include <algorithm>

#include "actions/courier.h"
#include "actions/losses.h"
#include "actions/supply_and_rally.h"
#include "actions/top_bar.h"
#include "battle/loss_notice.h"
#include "battle/morale.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/dice.h"
#include "model/reach.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

void ShowUnit(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    ShadeReachWith(game, 0);
    game.person->Redraw(View::CentreOnSelected);
}

void Highlight(Game& game, Cell cell, int value) {
    if (game.grid.Holds(cell)) game.grid.At(cell).highlight = value;
}

bool EnemyIsNear(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    CensusEnemy(game);
    return game.census.enemyCount > 0;
}

// Tests the unit in hand when the enemy stands in its area; whether it held.
bool HoldsAgainstEnemy(Game& game) {
    game.battle.moraleHeld = 1;
    if (EnemyIsNear(game)) {
        game.battle.terrainDefence = 0;
        MoraleTest(game);
    }
    return game.battle.moraleHeld == 1;
}

void TellOfRout(Game& game) {
    const Cell cell = game.InHand().Place();
    Highlight(game, cell, 1);
    ShowUnit(game);
    ShowCourier(game, 280);
    Highlight(game, cell, 0);
}

void RaiseStatusByMorale(Unit& unit) {
    if (unit.maxMorale == 0) return;
    const int percent = unit.morale * 100 / unit.maxMorale;
    if (percent >= 60) unit.status = UnitStatus::Unsteady;
    if (percent >= 80) unit.status = UnitStatus::Ordered;
}

void RecoverShaken(Game& game) {
    Unit& unit = game.InHand();
    if (!HoldsAgainstEnemy(game)) {
        if (unit.status == UnitStatus::Routed) TellOfRout(game);
        return;
    }
    RaiseStatusByMorale(unit);
    TakeOrderAgain(game);
}

void Rest(const Game& game, Unit& unit) {
    constexpr int kDarkness = 4;
    const int gain = game.header.visibility < kDarkness ? 4 : 2;
    unit.morale = std::min(unit.morale + gain, unit.maxMorale);
    unit.disrupted = 0;
    RecomputeStatus(unit);
}

void EndActivity(Unit& unit) {
    switch (unit.activity) {
        case UnitActivity::Charging:
        case UnitActivity::BayonetCharge:
        case UnitActivity::Reforming:
            unit.activity = UnitActivity::None;
            unit.actionPoints = 0;
            break;
        case UnitActivity::Hold: unit.activity = UnitActivity::None; break;
        default: break;
    }
}

void ResetForNextTurn(const Game& game, Unit& unit) {
    unit.attackedFlag = unit.canMove = unit.inCommand = 0;
    unit.previousX = unit.previousY = 0;
    unit.reservedA = unit.reservedB = 0;
    unit.reservedH = unit.reservedI = unit.reservedJ = 0;
    if (unit.fixedUntilTurn <= game.state.gameTurn) unit.outOfCommand = 0;
    unit.actionPoints = ComputeActionPoints(unit, game.header.visibility);
    EndActivity(unit);
}

void RecoverRouted(Game& game) {
    if (!HoldsAgainstEnemy(game)) return;
    Unit& unit = game.InHand();
    unit.status = UnitStatus::Shaken;
    unit.morale = static_cast<int>(unit.maxMorale * 0.45);
}

void ReportRoutLoss(Game& game, int loss) {
    ShowLossNotice(game, {kRoutedUnitReport, "Routed Unit Report"}, game.InHandId(), loss);
}

// Takes the unit in hand off the map, its slot with it.
void Dissolve(Game& game) {
    const UnitId id = game.InHandId();
    const Cell left = game.At(id).Place();
    VacateSlot(game, id);
    DestroyUnit(game, id);
    CloseUpAreaLeft(game, left);
}

void Melt(Game& game) {
    const UnitId id = game.InHandId();
    const Cell cell = game.At(id).Place();
    ShowUnit(game);
    Highlight(game, cell, 1);
    const int loss = game.At(id).strength;
    const int worth = ValueOfUnit(game.At(id));
    ReportRoutLoss(game, loss);
    Highlight(game, cell, 0);
    game.battle.surrenderLoss = loss;
    Dissolve(game);
    BookLoss(game, id.army, loss, worth);
}

void ShedStragglers(Game& game) {
    const UnitId id = game.InHandId();
    Unit& unit = game.At(id);
    const int loss = IsMounted(unit.type) ? 2 : 1;
    const int worth = ValueOfUnit(unit);
    ReportRoutLoss(game, loss);
    unit.strength -= loss;
    unit.morale = std::max(0, unit.morale - loss);
    if (unit.strength == 0) Dissolve(game);
    BookLoss(game, id.army, loss, worth);
}

bool Melts(const Unit& unit) {
    return (unit.status == UnitStatus::Routed && unit.strength == 1) ||
           (unit.morale == 0 && unit.strength > 0);
}

void EndTurnOfUnit(Game& game) {
    const UnitId id = game.InHandId();
    Unit& unit = game.At(id);
    if (!IsOnMap(game, id)) return;
    if (unit.status == UnitStatus::Shaken) RecoverShaken(game);
    if (unit.actionPoints > 0) Rest(game, unit);
    ResetForNextTurn(game, unit);
    if (unit.status == UnitStatus::Routed) RecoverRouted(game);
    if (Melts(unit)) {
        Melt(game);
    } else if (unit.status == UnitStatus::Routed) {
        ShedStragglers(game);
    }
}

// More wind, better chance: the sides of the die by miles an hour.
int SmokeDie(int windSpeed) {
    if (windSpeed < 6) return 5;
    return windSpeed <= 10 ? 3 : 2;
}

void ThinSmoke(Game& game) {
    if (game.time.windSpeed <= 0 || !LoggedDieShows(game, SmokeDie(game.time.windSpeed), 1)) return;
    for (PlayCell& cell : game.grid.PlayCells()) {
        if (cell.roadTile == kSmoke) cell.roadTile = kNoRoad;
    }
}

}  // namespace

void RunEndTurnMorale(Game& game) {
    GameState& state = game.state;
    state.strikeDrawCard = 0;
    ShowCourier(game, 93);
    for (int army = 0; army < kArmyCount; ++army) {
        if (game.Army(army).present != 1) continue;
        state.currentArmy = army;
        for (int index : UnitIndices(game)) {
            state.currentUnit = index;
            EndTurnOfUnit(game);
        }
    }
    DrawTopBar(game);
    if (state.bombardmentState == 2) state.bombardmentState = 0;
    ThinSmoke(game);
}

}  // namespace varnstride
