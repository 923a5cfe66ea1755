#include "app/care_orders.h"

#include "actions/courier.h"
#include "actions/exits.h"
#include "actions/supply_and_rally.h"
#include "actions/top_bar.h"
#include "actions/unit_in_hand.h"
#include "app/guards.h"

namespace varnstride {
namespace {

bool IsRetreating(const Unit& unit) {
    return unit.status == UnitStatus::Routed || unit.status == UnitStatus::Shaken;
}

void TellWhyNoSupply(Game& game) {
    const Unit& unit = game.InHand();
    if (unit.actionPoints == 0) {
        Alert(game);
        ShowCourier(game, 20);
    }
    if (unit.ammunition == kFullAmmunition) {
        Alert(game);
        ShowCourier(game, 21);
    }
}

void Rally(Game& game) {
    const bool points = HasCommandPoints(game);
    Unit& unit = game.InHand();
    if (unit.actionPoints == 0) ShowCourier(game, 18);
    if (!points || unit.actionPoints <= 0) return;
    if (unit.status == UnitStatus::Shaken) {
        RallyShaken(game);
    } else if (unit.status == UnitStatus::Routed) {
        RallyRouted(game);
    }
}

}  // namespace

void Resupply(Game& game) {
    const bool points = HasCommandPoints(game);
    if (game.state.currentUnit > 0) {
        TellWhyNoSupply(game);
        const Unit& unit = game.InHand();
        if (points && IsTurnOpen(game) && unit.actionPoints > 0 &&
            unit.ammunition != kFullAmmunition) {
            ResupplyUnit(game);
        }
    }
    ReleaseButtons(game);
}

void RallyAndReform(Game& game) {
    if (!IsTurnOpen(game) || !HasUnitInHand(game)) {
        game.person->Play(Sound::Ding);
        return;
    }
    const Unit& unit = game.InHand();
    if (!IsRetreating(unit)) {
        game.person->Play(Sound::Ding);
        ShowCourier(game, 268);
    } else if (unit.type == UnitType::Leader) {
        game.person->Play(Sound::Ding);
        ShowCourier(game, 15);
    } else {
        Rally(game);
    }
}

void LeaveMap(Game& game) {
    if (!HasCommandPoints(game) || !IsTurnOpen(game)) return;
    if (!RemoveFromMap(game)) return;
    game.state.currentUnit = game.state.selectedSlot = 0;
    ShowUnitPanels(game);
    DrawTopBar(game);
    game.person->Redraw(View::Map);
}

}  // namespace varnstride
