#include "model/score.h"

#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

struct MoraleSums {
    int score = 0;
    int total = 0;
};

// A unit whose quality is none of the five keeps the weight of the unit before it.
void TakeWeight(Quality quality, double& weight) {
    switch (quality) {
        case Quality::Elite: weight = 3.0; break;
        case Quality::Veteran: weight = 2.5; break;
        case Quality::Experienced: weight = 2.0; break;
        case Quality::Militia:
        case Quality::Conscript: weight = 1.0; break;
        case Quality::None: break;
    }
}

MoraleSums SumArmy(const Game& game, int army, double& weight) {
    MoraleSums sums;
    for (int index : UnitIndices(game)) {
        const Unit& unit = game.At({army, index});
        TakeWeight(unit.quality, weight);
        if (unit.strength > 0 && unit.maxMorale > 0) {
            const int fullMorale = unit.morale / unit.maxMorale;
            sums.score += static_cast<int>(fullMorale * (unit.strength * weight));
        }
        if (unit.initialStrength > 0) sums.total += static_cast<int>(unit.initialStrength * weight);
    }
    return sums;
}

constexpr int kObjectivePoints[] = {0, 50, 100, 150, 200};
constexpr int kHighestScoringObjective = 4;

// Which side alone shows in its first slot of the area: +1 for the French, -1 for the Allies, 0.
int HolderOf(const Game& game, const AreaRow& row) {
    const int french = IsHeld(game, row.frenchSlots[0]) ? 1 : 0;
    const int allied = IsHeld(game, row.alliedSlots[0]) ? 1 : 0;
    return french - allied;
}

int FrenchObjectivePoints(const Game& game) {
    int points = 0;
    for (Cell cell : game.grid.Objectives()) {
        const int objective = game.grid.Ground(cell).objective;
        const int ordinal = game.grid.AreaOf(cell);
        const bool scores = objective >= 1 && objective <= kHighestScoringObjective;
        if (!scores || ordinal == 0 || cell == kNoCell) continue;
        points += HolderOf(game, game.atlas->Row(ordinal)) * kObjectivePoints[objective];
    }
    return points;
}

}  // namespace

void RecomputeMorale(Game& game, ArmiesCounted armies) {
    GameState& state = game.state;
    state.alliedMorale = 0;
    int alliedSum = 0;
    int alliedArmies = 0;
    double weight = 0.0;
    for (int army = 0; army < kArmyCount; ++army) {
        const int present = game.Army(army).present;
        if (armies == ArmiesCounted::PresentExactlyOne ? present != 1 : present <= 0) continue;
        const MoraleSums sums = SumArmy(game, army, weight);
        if (sums.total <= 0) continue;
        const int percent = sums.score * 100 / sums.total;
        if (army == kFrench) {
            state.frenchMorale = percent;
        } else {
            alliedSum += percent;
            ++alliedArmies;
        }
    }
    if (alliedArmies > 0) state.alliedMorale = alliedSum / alliedArmies;
}

void ComputeVictoryScore(Game& game) {
    const int frenchScore = game.loss.alliedLossPoints / 10 - game.loss.frenchLossPoints / 10;
    const int sign = game.header.firstPlayer == kFrench ? 1 : -1;
    game.state.objectivePoints = sign * FrenchObjectivePoints(game);
    game.state.victoryScore = sign * frenchScore + game.state.objectivePoints;
}

int LevelOfFirstSide(const Game& game) {
    const int score = game.state.victoryScore;
    if (score <= game.header.majorDefeatLimit) return 0;
    if (score <= game.header.minorDefeatLimit) return 1;
    if (score < game.header.minorVictoryLimit) return 2;
    return score < game.header.majorVictoryLimit ? 3 : 4;
}

ArmyRout FindArmyRout(const GameState& state) {
    constexpr int kBroken = 20;
    constexpr int kSound = 40;
    if (state.alliedMorale < kBroken && state.frenchMorale > kSound) return ArmyRout::AlliesRouted;
    if (state.frenchMorale < kBroken && state.alliedMorale > kSound) return ArmyRout::FrenchRouted;
    return ArmyRout::None;
}

void ApplyArmyRoutRule(Game& game) {
    const ArmyRout rout = FindArmyRout(game.state);
    if (rout == ArmyRout::None) return;
    constexpr int kComputerPlaysFrench = 1;
    constexpr int kComputerPlaysAllies = 2;
    const Side winner = rout == ArmyRout::AlliesRouted ? Side::French : Side::Allied;
    Side told = SideOf(game.header.firstPlayer);
    if (game.state.computerPlays == kComputerPlaysFrench) told = Side::Allied;
    if (game.state.computerPlays == kComputerPlaysAllies) told = Side::French;
    game.state.victoryScore =
        winner == told ? game.header.majorVictoryLimit : game.header.majorDefeatLimit;
}

}  // namespace varnstride
