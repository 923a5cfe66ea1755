#include "battle/blows.h"

#include <algorithm>
#include <utility>

#include "actions/courier.h"
#include "actions/losses.h"
#include "battle/morale.h"
#include "battle/pairing.h"
#include "battle/strikes.h"
#include "model/areas.h"
#include "model/dice.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kMostLost = 2;  // strength points to one attack
constexpr int kSurvived = 5;
constexpr int kEliminated = 6;

int DividedByArms(std::span<const HitDivisor> divisors, UnitType striker, UnitType struck,
                  int strike) {
    int hit = 0;
    for (const HitDivisor& row : divisors) {
        if (row.striker.Holds(striker) && row.struck.Holds(struck)) hit = strike / row.divisor;
    }
    return hit;
}

int ThinnedBySize(std::span<const SizeDivisor> sizes, int strength, int hit) {
    double divisor = 1.0;
    for (const SizeDivisor& size : sizes) {
        if (strength >= size.fromStrength) divisor = size.divisor;
    }
    return static_cast<int>(hit / divisor);
}

bool IsBrokenGround(const Game& game) {
    return game.state.closeSlots > 1;
}

// In broken ground foot always finds somebody to shoot at; so do guns, but for men who scatter.
int LeastBlow(const Game& game, UnitType attacker, UnitType target) {
    const bool footFight = kFootOrLeader.Holds(attacker) &&
                           (kFootOrLeader.Holds(target) || kRocketsAndGuns.Holds(target));
    const bool scatters = target == UnitType::LightInfantry ||
                          target == UnitType::LightDragoonsDismounted ||
                          target == UnitType::DragoonsDismounted;
    const bool least = (footFight && IsBrokenGround(game)) || (IsFieldGun(attacker) && !scatters);
    return least ? 1 : 0;
}

int LeastAnswer(const Game& game, UnitType attacker, UnitType target) {
    const bool footFight = kFootOrLeader.Holds(attacker) && kFootOrLeader.Holds(target);
    return footFight && IsBrokenGround(game) ? 2 : 1;
}

// Points lost after the caps; skirmishers offer less to aim at.
int CappedLoss(int loss, bool skirmishes) {
    const int capped = std::min(loss, kMostLost);
    return skirmishes && capped == kMostLost ? 1 : capped;
}

void ChangePlaces(Game& game) {
    std::swap(game.state.currentArmy, game.battle.targetArmy);
    std::swap(game.state.currentUnit, game.battle.targetUnit);
}

void TestTheTarget(Game& game) {
    ChangePlaces(game);
    game.battle.defenderTested = 1;
    MoraleTest(game);
    game.battle.defenderTested = 0;
    ChangePlaces(game);
}

// Horse and shaken units may not stand; whether the target does.
bool TargetStands(Game& game) {
    const Unit& target = Target(game);
    game.battle.moraleHeld = 1;
    if (kLineHorse.Holds(target.type) || target.status == UnitStatus::Shaken) TestTheTarget(game);
    if (game.battle.moraleHeld == 1) return true;
    game.battle.attackGoes = 0;
    ShowCourier(game, 79);
    return false;
}

void StrikeBack(Game& game) {
    Unit& target = Target(game);
    if (target.formation == Formation::OpenOrder) game.battle.terrainDefence = 0;
    game.battle.defenceTerms = ComputeDefenceStrike(game).Terms();
    const bool fires = IsFoot(target.type) || IsFieldGun(target.type);
    if (fires && target.ammunition > 0) --target.ammunition;
}

int AnswerHit(const Game& game) {
    const Unit& attacker = game.InHand();
    const Unit& target = Target(game);
    const int hit = ThinnedBySize(
        kAttackerSizes, attacker.strength,
        DividedByArms(kAnswerDivisors, target.type, attacker.type, game.battle.defenceStrike));
    return std::max(hit, LeastAnswer(game, attacker.type, target.type));
}

void StrikeDownAttacker(Game& game) {
    const UnitId id = game.InHandId();
    const Cell place = game.At(id).Place();
    game.battle.attackerLoss = game.At(id).strength;
    VacateSlot(game, id);
    StrikeDownUnit(game, id);
    CloseUpAreaLeft(game, place);
}

void BearTheAnswer(Game& game) {
    BattleState& battle = game.battle;
    Unit& attacker = game.InHand();
    battle.attackerHit = AnswerHit(game);
    attacker.morale = std::max(0, attacker.morale - battle.attackerHit);
    const int thrown = LoggedOnes(game, battle.attackerHit - 1, 6);
    if (thrown > 0) attacker.disrupted = 1;
    battle.attackerLoss = CappedLoss(thrown, attacker.formation == Formation::OpenOrder);
    attacker.morale = std::max(0, attacker.morale - battle.attackerLoss);
    if (attacker.strength <= battle.attackerLoss) {
        StrikeDownAttacker(game);
    } else {
        attacker.strength -= battle.attackerLoss;
        LowerStatus(attacker);
    }
}

void EliminateTarget(Game& game) {
    const UnitId id = TargetId(game);
    const Cell place = game.At(id).Place();
    game.battle.resultMark = kEliminated;
    game.battle.defenderLoss = game.At(id).strength;
    VacateSlot(game, id);
    DestroyUnit(game, id);
    CloseUpArmy(game, id.army, place);
}

}  // namespace

void StrikeTheTarget(Game& game) {
    BattleState& battle = game.battle;
    const Unit& attacker = game.InHand();
    const Unit& target = Target(game);
    const int terrain = battle.terrainDefence;
    if (attacker.formation == Formation::OpenOrder) battle.terrainDefence = 0;
    battle.attackTerms = ComputeAttackStrike(game).Terms();
    battle.terrainDefence = terrain;
    const int hit = ThinnedBySize(
        kTargetSizes, target.strength,
        DividedByArms(kBlowDivisors, attacker.type, target.type, battle.attackStrike));
    battle.defenderHit = std::max(hit, LeastBlow(game, attacker.type, target.type));
    const int thrown = LoggedOnes(game, battle.defenderHit - 1, 8);
    const bool skirmishes =
        target.formation == Formation::OpenOrder && kFootOrLeader.Holds(attacker.type);
    battle.defenderLoss = CappedLoss(thrown, skirmishes);
}

void LetTheTargetAnswer(Game& game) {
    if (IsFieldGun(game.InHand().type) || game.battle.targetAlreadyRouted != 0) return;
    if (!TargetStands(game)) return;
    StrikeBack(game);
    BearTheAnswer(game);
}

void ShakeTheTarget(Game& game) {
    Unit& target = Target(game);
    LoseMorale(target, game.battle.defenderHit + game.battle.defenderLoss);
}

void SpreadRout(Game& game) {
    const UnitId routed = TargetId(game);
    const bool freshRout =
        game.At(routed).status == UnitStatus::Routed && game.battle.targetAlreadyRouted == 0;
    if (!freshRout) return;
    constexpr int kMoraleLost = 2;
    game.state.selectedCell = game.InHand().Place();
    SelectArea(game);
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId id = UnitStandingAt(game, EnemySlot(game, slot));
        if (!id || id.army != routed.army || id == routed || !IsOnMap(game, id)) continue;
        if (game.At(id).maxMorale > 0) LoseMorale(game.At(id), kMoraleLost);
    }
}

void SpendAmmunition(Unit& attacker, bool barrage) {
    const bool guns = IsFieldGun(attacker.type);
    const bool foot = kFootOrLeader.Holds(attacker.type);
    const bool bayonets = HasBayonetsFixed(attacker);
    const bool volleys = (guns && barrage) || (foot && !bayonets);
    const bool lastLoad = (guns && !barrage) || (foot && bayonets);
    int& loads = attacker.ammunition;
    if (loads < 2 && volleys) loads = 0;
    if (loads == 1 && lastLoad) loads = 0;
    if (loads > 1 && volleys) loads -= 2;
}

void TakeTargetLoss(Game& game) {
    BattleState& battle = game.battle;
    Unit& target = Target(game);
    if (battle.defenderLoss > 1) target.disrupted = 1;
    if (target.strength <= battle.defenderLoss) {
        EliminateTarget(game);
    } else {
        battle.resultMark = kSurvived;
        target.strength -= battle.defenderLoss;
    }
}

void BookAttackLosses(Game& game) {
    const UnitId target = TargetId(game);
    const UnitId attacker = game.InHandId();
    BookLoss(game, target.army, game.battle.defenderLoss, ValueOfUnit(game.At(target)));
    BookLoss(game, attacker.army, game.battle.attackerLoss, ValueOfUnit(game.At(attacker)));
}

void CloseUpArmy(Game& game, int army, Cell left) {
    const int inHand = std::exchange(game.state.currentArmy, army);
    CloseUpAreaLeft(game, left);
    game.state.currentArmy = inHand;
}

}  // namespace varnstride
