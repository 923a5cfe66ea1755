#include "battle/move_order.h"

#include <algorithm>

#include "actions/contact.h"
#include "actions/courier.h"
#include "actions/entry.h"
#include "actions/interception.h"
#include "actions/map8_crossing.h"
#include "actions/move_sound.h"
#include "actions/spotting.h"
#include "actions/top_bar.h"
#include "actions/undo.h"
#include "actions/unit_in_hand.h"
#include "battle/attack.h"
#include "battle/enemy_slots.h"
#include "model/areas.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kOwnInitiative = 5;  // leadership below this fails rules of initiative

bool HasChargeOrder(const Unit& unit) {
    return unit.activity == UnitActivity::Charging || unit.activity == UnitActivity::BayonetCharge;
}

bool IsHaltedBeforeContact(const Game& game) {
    return game.state.haltBeforeContact && game.InHand().leadership < kOwnInitiative;
}

bool HasPointsToOrder(Game& game) {
    if (game.ArmyInPlay().commandPoints > 0) return true;
    if (game.state.selectedSlot > 0) {
        game.person->Play(Sound::Ding);
        ShowCourier(game, 31);
    }
    return false;
}

bool TargetIsLegal(const Game& game) {
    return game.state.selectedSlot > 0 && IsOnMap(game, game.InHandId()) &&
           game.grid.IsLit(game.state.targetCell) && game.InHand().outOfCommand == 0;
}

// What a player must hear before anything is ordered; whether the order goes on.
bool PassesRefusals(Game& game) {
    const bool points = HasPointsToOrder(game);
    if (game.state.bombardmentMode != 0) {
        game.person->Confirm({"   Info. Box", "For Artillery Barrage Left Click the Area"});
    }
    if (!points || !TargetIsLegal(game)) return false;
    if (game.InHand().formation == Formation::Square) {
        ShowCourier(game, 239);
        return false;
    }
    return game.InHand().actionPoints > 0 && game.state.moveCost > 0 &&
           game.state.bombardmentMode == 0;
}

void TakeNote(Game& game) {
    NoteMove(game);
    Unit& unit = game.InHand();
    unit.previousX = unit.x;
    unit.previousY = unit.y;
    game.state.moveResult = 0;
    game.state.twoStepMove = false;
    game.state.undoTargetFormation = 0;
}

void LookForInterception(Game& game) {
    const Unit& unit = game.InHand();
    const bool goesFar = unit.type > UnitType::Leader || unit.formation == Formation::MarchColumn;
    if (unit.actionPoints <= 1 || !goesFar) return;
    CheckInterception(game);
    game.state.twoStepMove = game.state.moveCost == 2;
}

// A cautious commander stops his unit at the sight of the enemy.
bool HaltIfContact(Game& game) {
    if (!IsHaltedBeforeContact(game) || !IsOnMap(game, game.InHandId())) return false;
    game.state.selectedCell = game.state.targetCell;
    SelectArea(game);
    if (!EnemyPresent(game)) return false;
    ShiftUnit(game, game.InHandId(), game.undo.undoCell);
    game.InHand().actionPoints = 0;
    game.state.moveResult = 0;
    ShowCourier(game, 40);
    return true;
}

void FinishMove(Game& game) {
    CloseUpAreaLeft(game, game.undo.undoCell);
    if (game.InHand().formation != Formation::MarchColumn) CheckMap8Crossing(game);
    SpotAfterMove(game);
    if (IsMounted(game.InHand().type) && EnemyPresent(game)) ForceSquares(game);
}

void MarchIn(Game& game) {
    Unit& unit = game.InHand();
    const bool intercepted = game.state.stoppedShort != 0;
    const int taken = std::min(unit.actionPoints, game.state.moveCost);
    unit.actionPoints -= taken;
    VacateSlot(game, game.InHandId());
    if (unit.status == UnitStatus::Routed) game.state.retreatUnderFire = 2;
    MoveIntoTargetArea(game);
    if (game.state.moveResult == 0) {
        ReclaimSlot(game, game.InHandId());
        if (!intercepted) unit.actionPoints += taken;
    } else if (!HaltIfContact(game)) {
        FinishMove(game);
    }
    game.state.retreatUnderFire = 0;
}

void SelectEnteredArea(Game& game) {
    game.state.selectedCell = game.state.targetCell;
    SelectArea(game);
}

void March(Game& game) {
    MarchIn(game);
    SelectEnteredArea(game);
    if (!game.state.haltBeforeContact && game.state.moveResult > 0 && EnemyPresent(game) &&
        IsOnMap(game, game.InHandId())) {
        SettleContact(game);
    }
}

void SelectOwnArea(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    SelectArea(game);
}

// Horse rides into the target area; whether it got there.
bool RideIn(Game& game) {
    const Cell left = game.InHand().Place();
    game.state.selectedCell = left;
    VacateSlot(game, game.InHandId());
    MoveIntoTargetArea(game);
    if (game.state.moveResult == 0) {
        ReclaimSlot(game, game.InHandId());
        return false;
    }
    CloseUpAreaLeft(game, left);
    SpotAfterMove(game);
    SelectOwnArea(game);
    return true;
}

// The bayonet is for the unit's own area; whether there is anybody to charge.
bool FixBayonets(Game& game) {
    SelectOwnArea(game);
    if (!EnemyPresent(game)) {
        game.InHand().activity = UnitActivity::None;
        return false;
    }
    const int enemy = FindEnemyInSlot(game, FirstEnemySlot(game));
    const int army = EnemyArmyOf(game, game.state.currentAreaSlots);
    const bool horse = enemy > 0 && IsMounted(game.At({army, enemy}).type);
    ShowCourier(game, horse ? 281 : 275);
    return true;
}

void Strike(Game& game) {
    Unit& unit = game.InHand();
    const UnitId id = game.InHandId();
    --game.ArmyInPlay().commandPoints;
    unit.actionPoints = 0;
    unit.canMove = 1;
    game.battle.primaryCell = unit.Place();
    if (EnemyPresent(game)) {
        game.battle.requiredLeadership = 0;
        FillEnemySlots(game);
        ComputeTerrainDefence(game);
        ResolveAttack(game);
        game.undo.undoAvailable = 0;
    }
    game.state.currentUnit = id.index;
    game.InHand().activity = UnitActivity::Reforming;
}

bool ChargeIsHalted(Game& game) {
    if (!IsHaltedBeforeContact(game)) return false;
    const bool rides = game.InHand().activity == UnitActivity::Charging;
    game.state.selectedCell = rides ? game.state.targetCell : game.InHand().Place();
    SelectArea(game);
    if (!EnemyPresent(game)) return false;
    game.InHand().actionPoints = 0;
    game.state.moveResult = 0;
    ShowCourier(game, 40);
    return true;
}

void Charge(Game& game) {
    constexpr int kCost = 2;
    if (game.ArmyInPlay().commandPoints < kCost) {
        ShowCourier(game, 41);
        return;
    }
    if (ChargeIsHalted(game) || game.state.haltBeforeContact) return;
    const bool rides = game.InHand().activity == UnitActivity::Charging;
    if (rides ? !RideIn(game) : !FixBayonets(game)) return;
    const int slotTaken = game.state.moveResult;
    Strike(game);
    game.state.moveResult = slotTaken;
}

void HoldBeforeInterception(Game& game) {
    game.InHand().actionPoints = 0;
    --game.ArmyInPlay().commandPoints;
}

void ShowOrderGiven(Game& game) {
    GameState& state = game.state;
    if (IsOnMap(game, game.InHandId())) state.selectedCell = game.InHand().Place();
    state.selectedSlot = 0;
    ShowUnitPanels(game);
    DrawTopBar(game);
    if (state.moveResult == 0) return;
    if (game.InHand().actionPoints == 0) {
        game.grid.LightAll();
    } else {
        ShadeReach(game);
    }
    if (game.InHand().activity == UnitActivity::Reforming) {
        PlayReformingSound(game);
    } else {
        PlayMoveSound(game);
    }
}

}  // namespace

void MoveOrder(Game& game) {
    game.state.moveResult = game.state.moveBlocked = game.state.stoppedShort = 0;
    if (!PassesRefusals(game)) return;
    TakeNote(game);
    LookForInterception(game);
    if (game.state.moveBlocked != 0) {
        HoldBeforeInterception(game);
    } else if (HasChargeOrder(game.InHand())) {
        Charge(game);
    } else {
        March(game);
    }
    ShowOrderGiven(game);
}

}  // namespace varnstride
