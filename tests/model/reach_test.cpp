// What the unit in hand can reach: by arm, formation, Action Points, road and bombardment.
#include "model/reach.h"

#include <gtest/gtest.h>

#include <string>

#include "support/field.h"

namespace varnstride {
namespace {

// From area 1 there is a link of every kind: the area's number is told in the expected text of a
// case when it is lit.
//   2 first step Open            3 first step FootOnly     4 first step FootOrRoad
//   5 second step Open           6 second step RoadOnly    7 FootOnly, else second step RoadOnly
//   8 second step Open, not for a bombardment               9 via alone: never reached
FieldPlan EveryKindOfLink() {
    FieldPlan plan;
    plan.columns = 9;
    plan.links = {
        {1, 2, FirstStep::Open, SecondStep::None, 0, false},
        {1, 3, FirstStep::FootOnly, SecondStep::None, 0, false},
        {1, 4, FirstStep::FootOrRoad, SecondStep::None, 0, false},
        {1, 5, FirstStep::None, SecondStep::Open, 2, false},
        {1, 6, FirstStep::None, SecondStep::RoadOnly, 2, false},
        {1, 7, FirstStep::FootOnly, SecondStep::RoadOnly, 2, false},
        {1, 8, FirstStep::None, SecondStep::Open, 2, true},
        {1, 9, FirstStep::None, SecondStep::None, 2, false},
        {2, 9, FirstStep::Open, SecondStep::None, 0, false},
    };
    return plan;
}

std::string LitAreas(const Game& game) {
    std::string lit;
    for (int ordinal = 1; ordinal <= game.atlas->AreaCount(); ++ordinal) {
        const std::vector<Cell>& cells = game.grid.CellsOf(ordinal);
        const bool first = game.grid.IsLit(cells.front());
        for (Cell cell : cells)
            EXPECT_EQ(game.grid.IsLit(cell), first);
        if (first) lit += static_cast<char>('0' + ordinal);
    }
    return lit;
}

struct ReachCase {
    const char* what;
    UnitType type;
    Formation formation;
    int actionPoints;
    bool roadMover;
    bool bombarding;
    const char* lit;
};

constexpr auto kLine = Formation::Line;
constexpr auto kMarch = Formation::MarchColumn;
constexpr auto kInfantry = UnitType::LineInfantry;
constexpr auto kHorse = UnitType::HeavyCavalry;
constexpr auto kGun = UnitType::FieldArtillery;

constexpr ReachCase kReaches[] = {
    {"infantry without points", kInfantry, kLine, 0, false, false, "1"},
    {"infantry", kInfantry, kLine, 1, false, false, "12347"},
    {"infantry in line, two points", kInfantry, kLine, 2, false, false, "12347"},
    {"march column, one point", kInfantry, kMarch, 1, false, false, "12347"},
    {"march column, two points", kInfantry, kMarch, 2, false, false, "12345678"},
    {"leader off the road", UnitType::Leader, kLine, 2, false, false, "1234578"},
    {"leader", UnitType::Leader, kLine, 2, true, false, "12345678"},
    {"leader, one point", UnitType::Leader, kLine, 1, true, false, "12347"},
    {"horse off the road", kHorse, kLine, 2, false, false, "1258"},
    {"horse, one point", kHorse, kLine, 1, false, false, "12"},
    {"horse without points", kHorse, kMarch, 0, true, false, "1"},
    {"horse in march column", kHorse, kMarch, 2, true, false, "1245678"},
    {"march column of the computer's horse", kHorse, kMarch, 2, false, false, "125678"},
    {"guns by road, one point", kGun, kLine, 1, true, false, "124"},
    {"guns by road, two points", kGun, kLine, 2, true, false, "1245678"},
    {"rockets have no road", UnitType::RocketArtillery, kLine, 2, false, false, "1258"},
    {"wagons take one step", UnitType::SupplyWagon, kLine, 2, false, false, "12"},
    {"barrage of one area", kGun, kLine, 1, true, true, "2347"},
    {"barrage of two areas", kGun, kLine, 2, true, true, "234567"},
    {"barrage without a shot", kGun, kLine, 0, true, true, ""},
};

TEST(ShadeReach, GoesByArmFormationPointsRoadAndBarrage) {
    for (const ReachCase& given : kReaches) {
        Field field(EveryKindOfLink());
        Unit unit = MakeUnit(given.type);
        unit.formation = given.formation;
        unit.actionPoints = given.actionPoints;
        field.TakeInHand(field.Add(kFrench, 1, 2, unit));
        field.game.state.roadMover = given.roadMover;
        field.game.state.bombardmentMode = given.bombarding ? 1 : 0;
        field.game.state.moveCost = 2;
        ShadeReach(field.game);
        EXPECT_EQ(LitAreas(field.game), given.lit) << given.what;
        EXPECT_EQ(field.game.state.moveCost, given.actionPoints > 0 ? 1 : 2) << given.what;
    }
}

TEST(ShadeReach, AGunCanShellItsOwnAreaWhereALinkLeadsBack) {
    FieldPlan plan;
    plan.links = {{2, 2, FirstStep::Open, SecondStep::None, 0, false}};
    Field field(plan);
    field.TakeInHand(field.Add(kFrench, 2, 1, MakeUnit(UnitType::FieldArtillery)));
    field.game.state.bombardmentMode = 1;
    ShadeReach(field.game);
    EXPECT_EQ(LitAreas(field.game), "2");
}

TEST(ShadeReach, LinksAreOneWay) {
    Field field(EveryKindOfLink());
    field.TakeInHand(field.Add(kFrench, 2, 1, MakeUnit(UnitType::LightInfantry)));
    ShadeReach(field.game);
    EXPECT_EQ(LitAreas(field.game), "29");
}

TEST(ShadeReach, AddsToWhatIsLitOnlyWhenTold) {
    Field field(EveryKindOfLink());
    field.TakeInHand(field.Add(kFrench, 2, 1, MakeUnit(UnitType::LightInfantry)));
    ShadeReach(field.game);
    field.TakeInHand(field.Add(kFrench, 4, 1, MakeUnit(UnitType::LightInfantry)));
    field.game.state.rangeKeepLit = true;
    ShadeReach(field.game);
    EXPECT_EQ(LitAreas(field.game), "249");
    field.game.state.rangeKeepLit = false;
    ShadeReach(field.game);
    EXPECT_EQ(LitAreas(field.game), "4");
}

TEST(ShadeReach, FromNoAreaChangesNothing) {
    FieldPlan plan = EveryKindOfLink();
    plan.paint = [](Cell at, MapCell& cell) {
        if (at == Cell{30, 0}) cell.areaId = 0;
    };
    Field field(plan);
    field.TakeInHand(field.Add(kFrench, 2, 1, MakeUnit(UnitType::LightInfantry)));
    ShadeReach(field.game);
    field.game.state.selectedCell = {30, 0};
    field.game.state.moveCost = 7;
    ShadeReach(field.game);
    EXPECT_TRUE(field.game.grid.IsLit({8, 0}));
    EXPECT_FALSE(field.game.grid.IsLit({0, 0}));
    EXPECT_EQ(field.game.state.moveCost, 7);
}

TEST(ShadeReach, LeavesTheLastColumnAsItWas) {
    Field field(EveryKindOfLink());
    const Cell last{field.game.grid.Width() - 1, 2};
    const Cell beside{field.game.grid.Width() - 2, 2};
    ASSERT_EQ(field.game.grid.AreaOf(last), 9);
    field.TakeInHand(field.Add(kFrench, 9, 1, MakeUnit(UnitType::LightInfantry)));
    field.game.grid.ShadeAll();
    ShadeReach(field.game);
    EXPECT_TRUE(field.game.grid.IsLit(beside));
    EXPECT_FALSE(field.game.grid.IsLit(last));
    field.TakeInHand(field.Add(kFrench, 1, 1, MakeUnit(UnitType::LightInfantry)));
    field.game.grid.LightAll();
    ShadeReach(field.game);
    EXPECT_FALSE(field.game.grid.IsLit(beside));
    EXPECT_TRUE(field.game.grid.IsLit(last));
}

TEST(ShadeReachWith, GivesTheUnitItsOwnPointsBack) {
    Field field(EveryKindOfLink());
    const UnitId id = field.Add(kFrench, 1, 1, MakeUnit(kInfantry));
    field.TakeInHand(id);
    ShadeReachWith(field.game, 0);
    EXPECT_EQ(LitAreas(field.game), "1");
    EXPECT_EQ(field.game.At(id).actionPoints, 1);
}

}  // namespace
}  // namespace varnstride
