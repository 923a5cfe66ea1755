#include "app/unit_orders.h"

#include "actions/courier.h"
#include "actions/unit_in_hand.h"
#include "app/guards.h"
#include "model/reach.h"

namespace varnstride {
namespace {

constexpr int kChargeCost = 2;

bool IsRegularHorse(UnitType type) {
    return IsMounted(type) && type != UnitType::CossackCavalry;
}

// What stands against any cavalry charge, spoken one after the other.
void TellWhyNoCharge(Game& game) {
    if (game.InHand().type == UnitType::CossackCavalry) {
        Refuse(game, "Cossack Cavalry restriction",
               "Cossack Cavalry can not conduct a shock cavalry charge");
        ReleaseButtons(game);
    }
    if (game.ArmyInPlay().commandPoints == kChargeCost - 1) {
        ReleaseButtons(game);
        Refuse(game, "Charge Requires 2 Command Points", "Insufficient Command Points remaining");
    }
}

void DrawOrderGiven(Game& game) {
    game.person->Redraw(View::Map);
    game.person->Redraw(View::TopBar);
}

bool CanMarchFaster(const Unit& unit) {
    return unit.formation == Formation::OpenOrder || unit.formation == Formation::AttackColumn;
}

void MarchFaster(Game& game) {
    game.InHand().actionPoints = 2;
    --game.ArmyInPlay().commandPoints;
    PlayBattleSound(game, Sound::QuickMarch3);
    ShowUnitPanels(game);
    ShadeReach(game);
    DrawOrderGiven(game);
}

void TellWhyNotFaster(Game& game) {
    const Unit& unit = game.InHand();
    if (!IsInfantry(unit.type)) ShowCourier(game, 28);
    if (unit.actionPoints == 0) ShowCourier(game, 29);
    if (!CanMarchFaster(unit)) ShowCourier(game, 30);
}

}  // namespace

void PrepareCavalryCharge(Game& game) {
    const bool barrage = game.state.bombardmentMode != 0;
    if (barrage) ReleaseButtons(game);
    if (!HasCommandPoints(game)) ReleaseButtons(game);
    TellWhyNoCharge(game);
    Unit& unit = game.InHand();
    const bool affordable = game.ArmyInPlay().commandPoints >= kChargeCost;
    if (barrage || !affordable || !IsRegularHorse(unit.type)) return;
    if (unit.formation <= Formation::AttackColumn) {
        unit.activity = UnitActivity::Charging;
        return;
    }
    Alert(game);
    ShowCourier(game, 276);
    ReleaseButtons(game);
}

void PrepareBayonetCharge(Game& game) {
    const bool points = HasCommandPoints(game);
    if (!points) ReleaseButtons(game);
    Unit& unit = game.InHand();
    const bool steady = unit.status > UnitStatus::Shaken;
    if (!steady) {
        game.person->Play(Sound::Ding);
        ReleaseButtons(game);
    }
    if (!points || !steady || !IsInfantry(unit.type)) return;
    if (unit.formation <= Formation::MixedOrder || unit.formation == Formation::NoFormation) {
        unit.activity = UnitActivity::BayonetCharge;
        return;
    }
    ShowCourier(game, 276);
    ReleaseButtons(game);
}

void DoubleTime(Game& game) {
    const bool points = HasCommandPoints(game);
    const Unit& unit = game.InHand();
    if (unit.status < UnitStatus::Unsteady || unit.disrupted == 1) {
        Alert(game);
        ReleaseButtons(game);
        return;
    }
    if (points && IsTurnOpen(game) && IsInfantry(unit.type) && unit.actionPoints == 1 &&
        CanMarchFaster(unit)) {
        MarchFaster(game);
    }
    TellWhyNotFaster(game);
    ReleaseButtons(game);
}

void HoldUnit(Game& game) {
    const bool points = HasCommandPoints(game);
    if (!points || !HasUnitInHand(game) || !IsTurnOpen(game)) return;
    Unit& unit = game.InHand();
    unit.canMove = 0;
    unit.activity = UnitActivity::Hold;
    unit.actionPoints = 0;
    --game.ArmyInPlay().commandPoints;
    ShowUnitPanels(game);
    PlayBattleSound(game, Sound::Hold);
    ShadeReach(game);
    DrawOrderGiven(game);
}

}  // namespace varnstride
