#include "battle/attack_gates.h"

#include "actions/courier.h"
#include "battle/morale.h"
#include "battle/pairing.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

constexpr int kEndOfComputerTurn = 9;

bool InfantryCloses(const Game& game, UnitType target) {
    return kFootOrLeader.Holds(target) || IsFieldGun(target) ||
           (game.state.closeSlots >= kCloseTerrain && IsMountedOrMortar(target));
}

// Whether such an arm goes for such a target; twice the strength overcomes every scruple.
bool ArmsClose(const Game& game, const Unit& attacker, const Unit& target) {
    if (target.strength * 2 < attacker.strength) return true;
    if (IsFoot(attacker.type)) return InfantryCloses(game, target.type);
    return IsBetween(attacker.type, UnitType::LightCavalry, UnitType::FieldArtillery) &&
           attacker.type != UnitType::CossackCavalry;
}

bool PowderIsDamp(const Game& game, const Unit& attacker) {
    const int visibility = game.header.visibility;
    const bool fires = IsFoot(attacker.type) || attacker.type > UnitType::GuardCavalry;
    return fires && (visibility == 6 || visibility == 7) && game.state.bombardmentMode == 0 &&
           game.state.opponentMark != kEndOfComputerTurn;
}

bool IsTooDarkToBombard(const Game& game, const Unit& attacker) {
    constexpr int kSightOfGunners = 10;
    return attacker.type > UnitType::GuardCavalry && game.state.bombardmentMode == 1 &&
           game.header.visibility < kSightOfGunners;
}

bool MayExplain(const Game& game) {
    return game.state.eventCard < kFirstWeatherCard;
}

void TellOfNoTarget(Game& game, const Unit& attacker) {
    if (kMortarsToGuns.Holds(attacker.type)) {
        ShowCourier(game, 4);
    } else if (IsMounted(attacker.type)) {
        ShowCourier(game, 5);
    } else if (IsFoot(attacker.type) && MayExplain(game)) {
        ShowCourier(game, 206);
    }
}

void TellWhyNot(Game& game, const Unit& attacker, const Unit& target) {
    int code = 0;
    if (attacker.formation == Formation::MarchColumn) code = 1;
    if (game.state.closeSlots < kCloseTerrain && IsFoot(attacker.type) && IsMounted(target.type)) {
        code = 2;
    }
    if (attacker.type == UnitType::CossackCavalry && attacker.strength <= target.strength * 2) {
        code = 3;
    }
    if (code != 0 && MayExplain(game)) ShowCourier(game, code);
}

}  // namespace

void TestTheGates(Game& game) {
    const Unit& attacker = game.InHand();
    const Unit& target = Target(game);
    bool goes = ArmsClose(game, attacker, target) && attacker.formation != Formation::MarchColumn;
    if (PowderIsDamp(game, attacker)) {
        goes = false;
        ShowCourier(game, 91);
    }
    if (IsTooDarkToBombard(game, attacker)) {
        goes = false;
        ShowCourier(game, 90);
    }
    if (game.battle.targetUnit == 0) {
        goes = false;
        TellOfNoTarget(game, attacker);
    }
    if (!goes) TellWhyNot(game, attacker, target);
    game.battle.attackGoes = goes ? 1 : 0;
}

void TestNerveOfHorse(Game& game) {
    BattleState& battle = game.battle;
    if (!IsMounted(game.InHand().type) || battle.targetUnit == 0) return;
    if (battle.targetAlreadyRouted != 0) return;
    battle.moraleHeld = 1;
    MoraleTest(game);
    if (battle.moraleHeld == 1) return;
    battle.attackGoes = 0;
    ShowCourier(game, 278);
}

}  // namespace varnstride
