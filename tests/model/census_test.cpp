// The searches that orders, retreats and the computer share: the census of an area and the lit cell
// that leads on.
#include "model/census.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "support/field.h"

namespace varnstride {
namespace {

struct EnemyCase {
    const char* what;
    UnitType type;
    UnitStatus status;
    std::array<int, 6> flags;  // line, cavalry, guns, leader, heavy, routed
};

constexpr auto kOrdered = UnitStatus::Ordered;

constexpr EnemyCase kEnemies[] = {
    {"light infantry", UnitType::LightInfantry, kOrdered, {1, 0, 0, 0, 0, 0}},
    {"routed line", UnitType::LineInfantry, UnitStatus::Routed, {1, 0, 0, 0, 0, 1}},
    {"dismounted dragoons", UnitType::DragoonsDismounted, kOrdered, {1, 0, 0, 0, 0, 0}},
    {"leader", UnitType::Leader, kOrdered, {0, 0, 0, 1, 0, 0}},
    {"light cavalry", UnitType::LightCavalry, kOrdered, {0, 1, 0, 0, 0, 0}},
    {"heavy cavalry", UnitType::HeavyCavalry, kOrdered, {0, 1, 0, 0, 1, 0}},
    {"guard cavalry", UnitType::GuardCavalry, UnitStatus::Shaken, {0, 1, 0, 0, 0, 0}},
    {"mortars count with the horse", UnitType::MortarArtillery, kOrdered, {0, 1, 0, 0, 0, 0}},
    {"rockets count as nothing", UnitType::RocketArtillery, kOrdered, {0, 0, 0, 0, 0, 0}},
    {"horse artillery", UnitType::HorseArtillery, kOrdered, {0, 0, 1, 0, 0, 0}},
    {"field artillery", UnitType::FieldArtillery, kOrdered, {0, 0, 1, 0, 0, 0}},
    {"wagon", UnitType::SupplyWagon, kOrdered, {0, 0, 0, 0, 0, 0}},
};

std::array<int, 6> Flags(const Census& census) {
    return {census.enemyLineHere,   census.enemyCavalryHere, census.enemyGunsHere,
            census.enemyLeaderHere, census.enemyHeavyHere,   census.enemyRoutedHere};
}

TEST(CensusEnemy, TellsTheArmsOfAnArea) {
    for (const EnemyCase& given : kEnemies) {
        Field field({});
        Unit unit = MakeUnit(given.type);
        unit.status = given.status;
        field.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));  // of another area
        const UnitId enemy = field.Add(kFrench, 2, 1, unit);
        field.game.state.currentArmy = kPrussian;
        field.game.battle.targetArmy = kBritish;
        field.game.state.selectedCell = {10, 5};
        CensusEnemy(field.game);
        EXPECT_EQ(field.game.census.enemyCount, 1) << given.what;
        EXPECT_EQ(Flags(field.game.census), given.flags) << given.what;
        EXPECT_EQ(field.game.census.censusSlotUnit, (std::array<int, 3>{enemy.index, 0, 0}));
        EXPECT_EQ(field.game.battle.targetArmy, kFrench);
    }
}

TEST(CensusEnemy, SeesOnlyTheAlliedArmyThatShowsInTheFirstSlot) {
    FieldPlan plan;
    plan.mapNumber = 7;
    Field field(plan);
    field.Add(kBritish, 2, 1, MakeUnit(UnitType::LineInfantry));
    field.Add(kPrussian, 2, 2, MakeUnit(UnitType::HeavyCavalry));
    const UnitId third = field.Add(kBritish, 2, 3, MakeUnit(UnitType::FieldArtillery));
    field.game.state.selectedCell = {10, 0};
    CensusEnemy(field.game);
    EXPECT_EQ(field.game.census.enemyCount, 2);
    EXPECT_EQ(Flags(field.game.census), (std::array<int, 6>{1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(field.game.census.censusSlotUnit, (std::array<int, 3>{1, 0, third.index}));
}

TEST(CensusEnemy, AnEmptyFirstSlotHidesTheOthersAndClearsWhatWasFound) {
    Field field({});
    field.Add(kPrussian, 1, 1, MakeUnit(UnitType::LineInfantry));
    field.Add(kPrussian, 2, 2, MakeUnit(UnitType::HeavyCavalry));
    field.game.state.selectedCell = {0, 0};
    CensusEnemy(field.game);
    ASSERT_EQ(field.game.census.enemyCount, 1);
    field.game.state.selectedCell = {10, 0};
    CensusEnemy(field.game);
    EXPECT_EQ(field.game.census.enemyCount, 0);
    EXPECT_EQ(Flags(field.game.census), (std::array<int, 6>{}));
    EXPECT_EQ(field.game.census.censusSlotUnit, (std::array<int, 3>{}));
}

TEST(CensusEnemy, LeavesTheTargetOfAnAttackAlone) {
    Field field({});
    field.Add(kPrussian, 1, 1, MakeUnit(UnitType::LineInfantry));
    field.game.battle.attackRunning = true;
    field.game.battle.targetArmy = kRussian;
    CensusEnemy(field.game);
    EXPECT_EQ(field.game.census.enemyCount, 1);
    EXPECT_EQ(field.game.battle.targetArmy, kRussian);
}

struct OwnCase {
    UnitType type;
    int army;
    std::array<int, 4> counts;  // guns, cavalry, line, leaders
};

constexpr OwnCase kOwn[] = {
    {UnitType::LineInfantry, kFrench, {0, 0, 1, 0}},
    {UnitType::Leader, kFrench, {0, 0, 0, 1}},
    {UnitType::CossackCavalry, kFrench, {0, 1, 0, 0}},
    {UnitType::GuardCavalry, kFrench, {0, 0, 0, 0}},  // the French leave the Guard's horse out
    {UnitType::GuardCavalry, kBritish, {0, 1, 0, 0}},
    {UnitType::MortarArtillery, kBritish, {0, 0, 0, 0}},
    {UnitType::HorseArtillery, kBritish, {1, 0, 0, 0}},
    {UnitType::SupplyWagon, kFrench, {0, 0, 0, 0}},
};

TEST(CensusOwnAtTarget, CountsTheArmsOfTheArmyInTurn) {
    for (const OwnCase& given : kOwn) {
        FieldPlan plan;
        plan.mapNumber = 7;
        Field field(plan);
        field.Add(given.army, 3, 2, MakeUnit(given.type));
        field.Add(kPrussian, 3, 3, MakeUnit(given.type));  // an ally, or the enemy
        field.game.state.currentArmy = given.army;
        field.game.state.targetCell = {20, 1};
        field.game.census.ownGuns = field.game.census.ownLeaders = 9;
        CensusOwnAtTarget(field.game);
        const Census& census = field.game.census;
        EXPECT_EQ((std::array<int, 4>{census.ownGuns, census.ownCavalry, census.ownLine,
                                      census.ownLeaders}),
                  given.counts)
            << "type " << static_cast<int>(given.type) << ", army " << given.army;
    }
}

struct AdvanceCase {
    int army;
    int direction;
    int expectedArea;
};

// Three by three areas, all lit, the unit in the middle one.
constexpr AdvanceCase kAdvances[] = {
    {kFrench, 1, 4},   {kFrench, 2, 6},   {kFrench, 3, 3},   {kFrench, 4, 1},
    {kFrench, 5, 9},   {kFrench, 6, 7},   {kBritish, 1, 6},  {kBritish, 2, 4},
    {kPrussian, 3, 7}, {kPrussian, 4, 9}, {kPrussian, 5, 1}, {kPrussian, 6, 3},
};

TEST(FindAdvanceCell, MakesForTheGoalOfTheSide) {
    for (const AdvanceCase& given : kAdvances) {
        FieldPlan plan;
        plan.rows = 3;
        Field field(plan);
        field.TakeInHand(field.Add(given.army, 5, 1, MakeUnit(UnitType::LineInfantry)));
        field.game.turnLog.advanceDirection = given.direction;
        field.game.grid.LightPlayable();
        FindAdvanceCell(field.game);
        const Cell expected = field.SlotCell(SideOf(given.army), given.expectedArea, 1);
        EXPECT_EQ(field.game.state.advanceResultCell, expected)
            << "army " << given.army << ", direction " << given.direction;
        EXPECT_EQ(field.game.state.selectedCell, expected);
        EXPECT_EQ(field.game.state.targetCell, expected);
    }
}

void LightOnly(Game& game, std::initializer_list<int> ordinals) {
    AreaSet areas;
    for (int ordinal : ordinals)
        areas.Add(ordinal);
    game.grid.ShadePlayable();
    game.grid.Light(areas);
}

// Four columns of areas by five rows: three areas west and four areas south are both 24 cells off.
struct TieCase {
    int army;
    int direction;
    int upper;
    int lower;
};

constexpr TieCase kTies[] = {
    {kFrench, 3, 1, 20},    // to the north-east: (7,0) and (31,24)
    {kFrench, 4, 4, 17},    // to the north-west: (24,0) and (0,24)
    {kFrench, 6, 1, 20},    // to the south-west: (0,5) and (24,29)
    {kPrussian, 4, 4, 17},  // to the south-east: (31,5) and (7,29)
};

TEST(FindAdvanceCell, ATieGoesToTheUpperRow) {
    for (const TieCase& given : kTies) {
        FieldPlan plan;
        plan.columns = 4;
        plan.rows = 5;
        Field field(plan);
        field.TakeInHand(field.Add(given.army, 10, 1, MakeUnit(UnitType::LineInfantry)));
        field.game.turnLog.advanceDirection = given.direction;
        LightOnly(field.game, {given.upper, given.lower});
        FindAdvanceCell(field.game);
        EXPECT_EQ(field.game.state.advanceResultCell,
                  field.SlotCell(SideOf(given.army), given.upper, 1))
            << "army " << given.army << ", direction " << given.direction;
    }
}

// The grid of 3 x 3 areas with some cells of no area, all lit, and a French unit in row 7 that
// makes for column 1.
Cell AdvanceWest(std::initializer_list<Cell> noArea) {
    FieldPlan plan;
    plan.rows = 3;
    plan.paint = [&](Cell at, MapCell& cell) {
        if (std::find(noArea.begin(), noArea.end(), at) != noArea.end()) cell.areaId = 0;
    };
    Field field(plan);
    field.TakeInHand(field.Add(kFrench, 5, 1, MakeUnit(UnitType::LineInfantry)));
    field.game.turnLog.advanceDirection = 1;
    field.game.grid.LightPlayable();
    FindAdvanceCell(field.game);
    return field.game.state.advanceResultCell;
}

TEST(FindAdvanceCell, ColumnNoughtLiesNearerThanTheGoal) {
    EXPECT_EQ(AdvanceWest({{1, 7}}), (Cell{1, 7})) << "the first slot of area 4";
}

TEST(FindAdvanceCell, ACellOfNoAreaGivesTheLastLitOne) {
    EXPECT_EQ(AdvanceWest({{0, 7}}), (Cell{23, 17}));
}

TEST(FindAdvanceCell, FindsNothingInTheDarkOrWithoutADirection) {
    Field field({});
    field.TakeInHand(field.Add(kFrench, 2, 1, MakeUnit(UnitType::LineInfantry)));
    field.game.turnLog.advanceDirection = 1;
    field.game.grid.ShadePlayable();
    FindAdvanceCell(field.game);
    EXPECT_EQ(field.game.state.advanceResultCell, kNoCell);
    field.game.grid.LightPlayable();
    for (int direction : {0, 7, -1}) {
        field.game.turnLog.advanceDirection = direction;
        field.game.state.advanceResultCell = {3, 3};
        FindAdvanceCell(field.game);
        EXPECT_EQ(field.game.state.advanceResultCell, kNoCell) << direction;
    }
}

}  // namespace
}  // namespace varnstride
