#include "battle/morale.h"

#include <array>

#include "model/areas.h"
#include "model/census.h"
#include "model/dice.h"
#include "model/unit_rules.h"

namespace varnstride {
namespace {

struct NerveDie {
    int sides;
    int added;
};

// By morale left: above 40, 60 and 80 percent.
constexpr std::array<NerveDie, 3> kVeteranDice = {{{4, 2}, {7, 4}, {10, 6}}};
constexpr std::array<NerveDie, 3> kOtherDice = {{{6, 1}, {11, 2}, {16, 3}}};

// 0 to 2 for those bands; -1 for a unit at or below 40 percent, which throws nothing.
int MoraleBand(const Unit& unit) {
    if (unit.morale > unit.maxMorale * 0.8) return 2;
    if (unit.morale > unit.maxMorale * 0.6) return 1;
    return unit.morale > unit.maxMorale * 0.4 ? 0 : -1;
}

int ThrowNerveDie(Game& game, const Unit& unit) {
    const int band = MoraleBand(unit);
    if (band < 0) return 0;
    const auto& dice = unit.quality <= Quality::Veteran ? kVeteranDice : kOtherDice;
    const NerveDie die = dice[static_cast<std::size_t>(band)];
    return LoggedDie(game, die.sides) + die.added;
}

int ScoreForNumbers(const Game& game) {
    const int ahead = game.state.ownSlotsFilled - game.census.enemyCount;
    if (ahead > 1) return 2;
    if (ahead < -1) return -2;
    return ahead;
}

int ScoreForStatus(UnitStatus status) {
    switch (status) {
        case UnitStatus::Ordered: return 1;
        case UnitStatus::Unsteady: return -1;
        case UnitStatus::Shaken: return -2;
        default: return 0;
    }
}

int ScoreForGround(const BattleState& battle) {
    if (battle.terrainDefence <= 1) return 0;
    if (battle.defenderTested == 0) return -1;
    return battle.terrainDefence > 2 ? 2 : 1;
}

int ScoreForOpponent(const Game& game, const Unit& unit) {
    const BattleState& battle = game.battle;
    if (battle.targetUnit == 0) return 0;
    const Unit& opponent = game.At({battle.targetArmy, battle.targetUnit});
    int score = 0;
    if (battle.defenderTested == 1 && opponent.formation == Formation::AttackColumn) score -= 2;
    const bool horse = IsBetween(opponent.type, UnitType::LightCavalry, UnitType::CossackCavalry);
    if (IsFoot(unit.type) && unit.formation != Formation::Square && horse) score -= 2;
    return score;
}

struct Verdict {
    int breaksBelow;
    int waversUpTo;
};

constexpr std::array<Verdict, 6> kVerdicts = {{
    {0, 0},    // no quality
    {5, 7},    // elite
    {7, 9},    // veteran
    {9, 11},   // experienced
    {11, 14},  // militia
    {11, 14},  // conscript
}};

void Break(Game& game, Unit& unit) {
    if (unit.status > UnitStatus::Routed) {
        unit.morale = static_cast<int>(unit.maxMorale * 0.35);
        unit.status = UnitStatus::Routed;
        unit.formation = Formation::NoFormation;
    }
    game.battle.moraleHeld = 0;
}

void Waver(Game& game, Unit& unit) {
    if (unit.type == UnitType::Leader || IsFieldGun(unit.type)) return;
    if (unit.status == UnitStatus::Ordered) {
        unit.status = UnitStatus::Unsteady;
        unit.morale = static_cast<int>(unit.maxMorale * 0.7);
    }
    game.battle.moraleHeld = 0;
}

void PassVerdict(Game& game) {
    Unit& unit = game.InHand();
    const auto quality = static_cast<std::size_t>(unit.quality);
    const Verdict verdict = quality < kVerdicts.size() ? kVerdicts[quality] : Verdict{0, 0};
    if (game.battle.testScore < verdict.breaksBelow) {
        Break(game, unit);
    } else if (game.battle.testScore <= verdict.waversUpTo) {
        Waver(game, unit);
    }
}

}  // namespace

void MoraleTest(Game& game) {
    constexpr int kBase = 10;
    constexpr int kSteadyNerves = 15;
    const Unit& unit = game.InHand();
    int score = ThrowNerveDie(game, unit) + kBase;
    game.state.selectedCell = unit.Place();
    CensusEnemy(game);
    SelectArea(game);
    score += ScoreForNumbers(game) + ScoreForStatus(unit.status) + ScoreForGround(game.battle);
    if (game.census.enemyRoutedHere > 0) score += 1;
    if (game.census.enemyHeavyHere == 1) score -= 2;
    if (unit.type == UnitType::FieldArtillery) score -= 2;
    score += ScoreForOpponent(game, unit);
    const bool steady =
        game.state.steadyNerves == 1 && game.state.steadyNervesArmy == game.state.currentArmy;
    game.battle.testScore = steady ? kSteadyNerves : score;
    PassVerdict(game);
}

}  // namespace varnstride
