#include "actions/entry.h"

#include <algorithm>
#include <array>

#include "actions/courier.h"
#include "actions/losses.h"
#include "actions/sides.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/terrain.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kMontStJean = 7;
constexpr std::array<Cell, 3> kPrussianEntrances = {{{91, 43}, {93, 51}, {90, 59}}};

bool IsRouted(const Unit& unit) {
    return unit.status == UnitStatus::Routed;
}
bool IsClose(const Game& game) {
    return game.state.closeSlots >= kCloseTerrain;
}

bool LeaderInFrontSlots(const Game& game) {
    for (int slot = 0; slot < 2; ++slot) {
        const UnitId unit = UnitStandingAt(game, OwnSlot(game, slot));
        if (unit && IsOnMap(game, unit) && game.At(unit).type == UnitType::Leader) {
            return true;
        }
    }
    return false;
}

int FirstFreeSlotOfTwo(const Game& game) {
    if (!IsHeld(game, OwnSlot(game, 0))) return 1;
    return IsHeld(game, OwnSlot(game, 1)) ? 3 : 2;
}

void RefuseFullArea(Game& game) {
    game.state.moveResult = 0;
    if (IsHumanArmy(game) && game.state.retreatUnderFire == 0 && !game.state.placingReinforcement) {
        ShowCourier(game, 8);
    }
}

void RefuseRoutInCloseGround(Game& game) {
    game.state.moveResult = 0;
    if (!IsHumanArmy(game) && game.header.fogNone != 1) return;
    LoseMorale(game.InHand(), 1);
    ShowCourier(game, 9);
}

// The third slot is for ground that holds three: not for a close area without a leader.
void TestThirdSlot(Game& game) {
    const Unit& unit = game.InHand();
    const bool leaderHere = LeaderInFrontSlots(game);
    const bool crowded =
        IsClose(game) && !IsRouted(unit) && unit.type != UnitType::Leader && !leaderHere;
    if (IsHeld(game, OwnSlot(game, 2)) || crowded) RefuseFullArea(game);
    if (IsClose(game) && IsRouted(unit) && (unit.type > UnitType::Leader || !leaderHere)) {
        RefuseRoutInCloseGround(game);
    }
}

bool AnotherAllyStandsIn(const Game& game, Cell slot) {
    const UnitId unit = UnitStandingAt(game, slot);
    return unit && unit.army != kFrench && unit.army != game.state.currentArmy &&
           game.Army(unit.army).present != 0 && IsOnMap(game, unit);
}

// While the allies keep apart, the slot before the one chosen tells whose area it is.
void KeepAlliesApart(Game& game, int chosen) {
    const bool applies = game.header.mapNumber == kMontStJean && game.state.alliesApart &&
                         game.OwnSide() == Side::Allied && chosen > 1;
    if (applies && AnotherAllyStandsIn(game, OwnSlot(game, chosen - 2))) game.state.moveResult = 0;
}

void ChooseSlot(Game& game) {
    const int chosen = FirstFreeSlotOfTwo(game);
    game.state.moveResult = chosen;
    if (chosen == 3) TestThirdSlot(game);
    KeepAlliesApart(game, chosen);
}

void TestCloseGround(Game& game) {
    const Unit& unit = game.InHand();
    const bool routedHorseOrGuns =
        IsRouted(unit) && IsBetween(unit.type, UnitType::LightCavalry, UnitType::FieldArtillery);
    if ((routedHorseOrGuns || game.state.noCloseEntry) && IsClose(game)) game.state.moveResult = 0;
}

void PayForCharge(Unit& unit) {
    if (unit.activity == UnitActivity::Charging || unit.activity == UnitActivity::BayonetCharge) {
        LoseMorale(unit, 2);
    }
}

void RefuseShakenInContact(Game& game) {
    if (game.InHand().status != UnitStatus::Shaken || !EnemyPresent(game)) return;
    game.state.moveResult = 0;
    ShowCourier(game, 10);
}

void TestRetreat(Game& game) {
    const bool full =
        IsHeld(game, OwnSlot(game, 2)) || (IsHeld(game, OwnSlot(game, 1)) && IsClose(game));
    if (!full && !EnemyPresent(game)) return;
    game.state.moveResult = 0;
    ShowCourier(game, 211);
    game.state.retreatUnderFire = 0;
}

void RefusePrussianEntrance(Game& game) {
    const Cell first = game.state.currentAreaSlots[0];
    const bool applies = game.state.currentArmy == kFrench &&
                         game.header.mapNumber == kMontStJean &&
                         game.Army(kPrussian).present != 0 &&
                         std::find(kPrussianEntrances.begin(), kPrussianEntrances.end(), first) !=
                             kPrussianEntrances.end();
    if (!applies) return;
    game.state.moveResult = 0;
    game.person->Confirm({"Prussian Entrance Area ", "Movement to this area prohibited"});
}

void PayCommandPoints(Game& game) {
    int& points = game.ArmyInPlay().commandPoints;
    if (game.state.placingReinforcement || game.state.moveResult == 0 || points <= 0) return;
    --points;
    if (game.state.leavingContact && points > 0) {
        --points;
        game.state.leavingContact = false;
    }
}

// A unit on the run may lose stragglers, and itself with its last strength point.
void SufferOnTheRun(Game& game) {
    constexpr int kUnlucky = 1;
    if (LoggedDieShows(game, 6, kUnlucky)) {
        const UnitId id = game.InHandId();
        Unit& unit = game.At(id);
        const int worth = ValueOfUnit(unit);
        game.battle.surrenderLoss = 1;
        --unit.strength;
        if (unit.strength <= 0) {
            constexpr int kDestroyedOnRetreat = 4;
            game.battle.resultMark = kDestroyedOnRetreat;
            DestroyUnit(game, id);
        } else if (unit.morale > 0) {
            LoseMorale(unit, 1);
        }
        ShowCourier(game, game.state.retreatUnderFire == 1 ? 212 : 284);
        BookLoss(game, id.army, 1, worth);
    }
    game.state.retreatUnderFire = 0;
}

// The tests and costs that follow the choice of a slot.
void TestEntry(Game& game) {
    PayForCharge(game.InHand());
    if (game.state.retreatUnderFire > 0) {
        TestRetreat(game);
        if (game.state.moveResult > 0) SufferOnTheRun(game);
        return;
    }
    RefuseShakenInContact(game);
    RefusePrussianEntrance(game);
    PayCommandPoints(game);
}

void TakeSlot(Game& game) {
    PlaceUnit(game, game.InHandId(), OwnSlot(game, game.state.moveResult - 1));
    game.InHand().canMove = 0;
}

// What the ground and the march do to ordered ranks.
void DisturbFormation(Game& game) {
    Unit& unit = game.InHand();
    const AreaSlots& slots = game.state.currentAreaSlots;
    const bool formed = unit.type != UnitType::Leader && unit.type < UnitType::MortarArtillery &&
                        unit.formation < Formation::OpenOrder && unit.status > UnitStatus::Routed;
    if (formed) {
        if (CountSlotsThat(game, slots, IsDense) > 1) unit.formation = Formation::NoFormation;
        if (CountSlotsThat(game, slots, IsNotOpen) > 1) unit.disrupted = 1;
    }
    if (IsFoot(unit.type) && unit.formation == Formation::Line) unit.disrupted = 1;
}

}  // namespace

void EnterArea(Game& game, const AreaSlots& slots) {
    SetAreaSlots(game, slots);
    game.state.moveResult = 0;
    CountCloseSlots(game);
    if (game.state.selectedSlot <= 0) return;
    ChooseSlot(game);
    TestCloseGround(game);
    if (game.state.moveResult == 0) return;
    TestEntry(game);
    if (game.state.moveResult == 0 || game.InHand().strength <= 0) return;
    TakeSlot(game);
    DisturbFormation(game);
}

void MoveIntoTargetArea(Game& game) {
    game.state.moveResult = 0;
    const int ordinal = game.grid.AreaOf(game.state.targetCell);
    if (ordinal > 0) EnterArea(game, game.atlas->Row(ordinal).Slots());
}

}  // namespace varnstride
