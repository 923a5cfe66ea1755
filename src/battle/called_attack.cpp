#include "battle/called_attack.h"

#include "actions/courier.h"
#include "actions/top_bar.h"
#include "actions/unit_in_hand.h"
#include "battle/attack.h"
#include "battle/barrage.h"
#include "battle/enemy_slots.h"
#include "model/areas.h"

namespace varnstride {
namespace {

bool IsBarrage(const Game& game) {
    return game.state.bombardmentMode != 0;
}

bool CanPay(const Game& game) {
    constexpr int kLoads = 2;
    const Unit& unit = game.InHand();
    return game.ArmyInPlay().commandPoints > 0 &&
           (unit.ammunition >= kLoads || IsMountedOrMortar(unit.type));
}

// A local battle is for an area that the own side holds as well.
bool AreaIsLegal(const Game& game) {
    return game.grid.IsLit(game.state.selectedCell) &&
           (IsBarrage(game) || game.state.ownSlotsFilled > 0);
}

void SpendOnAttack(Game& game) {
    Unit& unit = game.InHand();
    --game.ArmyInPlay().commandPoints;
    unit.actionPoints = 0;
    unit.canMove = 1;
    game.waiting.gun = {};
    game.undo.undoAvailable = 0;
}

void Attack(Game& game) {
    Unit& unit = game.InHand();
    if (game.state.localBattleMode == 1) {
        ShowCourier(game, 270);
        unit.reservedH = 1;
    }
    if (IsBarrage(game)) game.battle.tacticalAdvantage = 0;
    SpendOnAttack(game);
    game.battle.primaryCell = unit.Place();
    game.battle.requiredLeadership = 0;
    ComputeTerrainDefence(game);
    ResolveAttack(game);
}

// The panels may take another unit of the area in hand; the attacker stays it.
void ShowAttacked(Game& game) {
    const int attacker = game.state.currentUnit;
    ShowUnitPanels(game);
    DrawTopBar(game);
    game.state.currentUnit = attacker;
}

void LookForFire(Game& game, Cell shelled, Cell gun) {
    game.state.selectedCell = shelled;
    SelectArea(game);
    CheckBuildingFire(game);
    game.grid.At(gun).highlight = 0;
}

// Whatever was in hand before the order is in hand again.
void EndOrder(Game& game) {
    GameState& state = game.state;
    state.bombardmentMode = state.localBattleMode = 0;
    state.currentUnit = game.waiting.heldUnit;
    state.selectedCell = game.InHand().Place();
    game.grid.LightAll();
    game.person->Redraw(View::Toolbar);
    game.person->Redraw(View::Map);
}

}  // namespace

bool AwaitsArea(const Game& game) {
    return IsBarrage(game) ||
           (game.state.localBattleMode != 0 && game.options.localInitiativeOn == 1);
}

void FightCalledAttack(Game& game, Cell clicked) {
    if (!AwaitsArea(game) || !CanPay(game) || !AreaIsLegal(game)) return;
    game.state.selectedCell = clicked;
    SelectArea(game);
    FillEnemySlots(game);
    if (game.battle.enemySlotsFilled == 0) {
        ShowCourier(game, 38);
        return;
    }
    const Cell area = game.state.selectedCell;
    const Cell from = game.InHand().Place();
    Attack(game);
    ShowAttacked(game);
    if (IsBarrage(game)) LookForFire(game, area, from);
    EndOrder(game);
}

}  // namespace varnstride
