// How the battle stands: army morale, the score with its objectives, and the rout of an army.
#include "model/score.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/field.h"

namespace varnstride {
namespace {

struct Soldier {
    int army;
    Quality quality;
    int strength;
    int initialStrength;
    int morale;
    int maxMorale;
};

struct MoraleCase {
    const char* what;
    std::vector<Soldier> units;
    int french;  // 55 before
    int allied;
};

constexpr auto kElite = Quality::Elite;
constexpr auto kVeteran = Quality::Veteran;
constexpr auto kExperienced = Quality::Experienced;
constexpr auto kMilitia = Quality::Militia;

const MoraleCase kMorale[] = {
    {"fresh", {{kFrench, kElite, 6, 6, 9, 9}, {kPrussian, kMilitia, 5, 5, 4, 4}}, 100, 100},
    {"one point of morale gone counts as all",
     {{kFrench, kElite, 6, 6, 8, 9}, {kFrench, kMilitia, 6, 6, 4, 4}},
     6 * 100 / 24,
     0},
    {"strength lost: 4 x 2.5 of 7 x 2.5, cut to whole numbers",
     {{kFrench, kVeteran, 4, 7, 8, 8}},
     10 * 100 / 17,
     0},
    {"each unit's product is cut by itself: 7 + 7 of 15 + 17",
     {{kFrench, kVeteran, 3, 6, 8, 8}, {kFrench, kVeteran, 3, 7, 8, 8}},
     14 * 100 / 32,
     0},
    {"the dead count in the total",
     {{kFrench, kExperienced, 0, 5, 0, 8}, {kFrench, kExperienced, 5, 5, 8, 8}},
     50,
     0},
    {"morale twice the start counts twice", {{kFrench, kExperienced, 5, 5, 16, 8}}, 200, 0},
    {"without a morale at the start", {{kFrench, kExperienced, 5, 5, 0, 0}}, 0, 0},
    {"no quality keeps the weight of the unit before",
     {{kFrench, kElite, 2, 2, 8, 8}, {kFrench, Quality::None, 2, 4, 8, 8}},
     12 * 100 / 18,
     0},
    {"no quality keeps the weight of the army before",
     {{kFrench, kElite, 5, 5, 8, 8},
      {kPrussian, Quality::None, 2, 2, 8, 8},
      {kPrussian, kMilitia, 3, 4, 8, 8}},
     100,
     9 * 100 / 10},
    {"the first of all without quality weighs nothing",
     {{kFrench, Quality::None, 5, 5, 8, 8}, {kFrench, kMilitia, 1, 2, 8, 8}},
     50,
     0},
    {"the Allies have the mean of their armies, not of their men",
     {{kBritish, kMilitia, 3, 3, 8, 8}, {kPrussian, kMilitia, 33, 100, 8, 8}},
     55,
     (100 + 33) / 2},
};

TEST(ArmyMorale, WeighsStrengthByQuality) {
    for (const MoraleCase& given : kMorale) {
        Field field({});
        int next = 1;
        for (const Soldier& soldier : given.units) {
            Unit unit = MakeUnit(UnitType::LineInfantry);
            unit.quality = soldier.quality;
            unit.strength = soldier.strength;
            unit.initialStrength = soldier.initialStrength;
            unit.morale = soldier.morale;
            unit.maxMorale = soldier.maxMorale;
            field.game.At({soldier.army, next++}) = unit;
            field.game.Army(soldier.army).present = 1;
        }
        field.game.state.frenchMorale = 55;
        RecomputeMorale(field.game, ArmiesCounted::Present);
        EXPECT_EQ(field.game.state.frenchMorale, given.french) << given.what;
        EXPECT_EQ(field.game.state.alliedMorale, given.allied) << given.what;
    }
}

TEST(ArmyMorale, CountsTheArmiesThatTakePart) {
    for (int present : {0, 1, 2, -1}) {
        Field field({});
        field.game.At({kPrussian, 1}) = MakeUnit(UnitType::LineInfantry);
        field.game.Army(kPrussian).present = present;
        RecomputeMorale(field.game, ArmiesCounted::PresentExactlyOne);
        EXPECT_EQ(field.game.state.alliedMorale, present == 1 ? 100 : 0) << present;
        RecomputeMorale(field.game, ArmiesCounted::Present);
        EXPECT_EQ(field.game.state.alliedMorale, present > 0 ? 100 : 0) << present;
    }
}

// One line of areas with an objective of each kind; who stands in which first slots.
struct ScoreCase {
    const char* what;
    std::vector<int> french;
    std::vector<int> allied;
    int firstPlayer;
    int frenchLossPoints;
    int alliedLossPoints;
    int objectivePoints;
    int victoryScore;
};

const ScoreCase kScores[] = {
    {"nobody anywhere", {}, {}, kFrench, 0, 0, 0, 0},
    {"50, 100, 150, 200", {1, 2, 3, 4}, {}, kFrench, 0, 0, 500, 500},
    {"told from the Allies' side", {1, 2, 3, 4}, {}, kPrussian, 0, 0, -500, -500},
    {"the enemy's holdings count against", {4}, {3}, kFrench, 0, 0, 50, 50},
    {"both in the area score for nobody", {2}, {2}, kFrench, 0, 0, 0, 0},
    {"a listed place and an exit score nothing", {5, 6}, {}, kFrench, 0, 0, 0, 0},
    {"a marked area counts each of its cells", {7}, {}, kFrench, 0, 0, 150, 150},
    {"each loss is divided by itself", {}, {}, kFrench, 19, 30, 0, 2},
    {"nine points weigh nothing", {}, {}, kFrench, 9, 0, 0, 0},
    {"losses from the Allies' side", {}, {1}, kPrussian, 120, 45, 50, 58},
};

// The mark on (0, 0), which is no cell, never counts.
void PaintObjectives(Cell at, MapCell& cell) {
    const int area = at.x / kFieldAreaWidth + 1;
    if (at == kNoCell) cell.objective = 4;
    if (area <= 6 && at.x % kFieldAreaWidth == 0 && at.y == 2) cell.objective = area;
    if (area == 7 && at.y == 2 && at.x % kFieldAreaWidth < 2) cell.objective = at.x % 2 + 1;
}

TEST(VictoryScore, IsLossesAndObjectivesFromTheFirstSide) {
    for (const ScoreCase& given : kScores) {
        FieldPlan plan;
        plan.columns = 7;
        plan.paint = PaintObjectives;
        Field field(plan);
        for (int area : given.french)
            field.Add(kFrench, area, 1, MakeUnit(UnitType::Leader));
        for (int area : given.allied)
            field.Add(kPrussian, area, 1, MakeUnit(UnitType::Leader));
        field.game.header.firstPlayer = given.firstPlayer;
        field.game.loss.frenchLossPoints = given.frenchLossPoints;
        field.game.loss.alliedLossPoints = given.alliedLossPoints;
        field.game.state.selectedCell = {2, 2};
        const AreaSlots before = field.game.state.currentAreaSlots;
        ComputeVictoryScore(field.game);
        EXPECT_EQ(field.game.state.objectivePoints, given.objectivePoints) << given.what;
        EXPECT_EQ(field.game.state.victoryScore, given.victoryScore) << given.what;
        EXPECT_EQ(field.game.state.selectedCell, (Cell{2, 2})) << given.what;
        EXPECT_EQ(field.game.state.currentAreaSlots, before) << given.what;
    }
}

TEST(VictoryScore, OnlyTheFirstSlotsHoldAnObjective) {
    FieldPlan plan;
    plan.columns = 7;
    plan.paint = PaintObjectives;
    Field field(plan);
    field.Add(kFrench, 4, 2, MakeUnit(UnitType::LineInfantry));
    ComputeVictoryScore(field.game);
    EXPECT_EQ(field.game.state.victoryScore, 0);
}

struct RoutCase {
    int french;
    int allied;
    int computerPlays;
    int firstPlayer;
    int score;  // 7 before, limits -300 and 400
};

constexpr RoutCase kRouts[] = {
    {19, 40, 0, kFrench, 7},      {19, 41, 0, kFrench, -300},   {20, 41, 0, kFrench, 7},
    {41, 19, 0, kFrench, 400},    {40, 19, 0, kFrench, 7},      {41, 20, 0, kFrench, 7},
    {10, 10, 0, kFrench, 7},      {19, 41, 0, kPrussian, 400},  {41, 19, 0, kPrussian, -300},
    {19, 41, 1, kFrench, 400},   // the player has the Allies and has won
    {19, 41, 2, kFrench, -300},  // the player has the French
    {19, 41, 2, kPrussian, -300}, {41, 19, 1, kPrussian, -300}, {41, 19, 2, kPrussian, 400},
    {19, 41, 3, kFrench, -300},  // nobody plays, so the side that moves first is told
};

TEST(ArmyRout, ForcesTheOuterLimitOfThePlayersSide) {
    for (const RoutCase& given : kRouts) {
        Field field({});
        field.game.header.majorDefeatLimit = -300;
        field.game.header.majorVictoryLimit = 400;
        field.game.header.firstPlayer = given.firstPlayer;
        field.game.state.frenchMorale = given.french;
        field.game.state.alliedMorale = given.allied;
        field.game.state.computerPlays = given.computerPlays;
        field.game.state.victoryScore = 7;
        ApplyArmyRoutRule(field.game);
        EXPECT_EQ(field.game.state.victoryScore, given.score)
            << given.french << " against " << given.allied << ", computer " << given.computerPlays
            << ", first " << given.firstPlayer;
    }
}

}  // namespace
}  // namespace varnstride
