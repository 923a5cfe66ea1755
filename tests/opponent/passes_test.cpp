// Passes whose turnings a battle seldom takes: garrisons, who may leave an area that both sides
// hold, what binds the advance, and rallies without points.
#include "opponent/passes.h"

#include <gtest/gtest.h>

#include "opponent/opponent_field.h"

namespace varnstride {
namespace {

constexpr int kWest = 1;
constexpr int kMiddle = 2;
constexpr int kEast = 3;
constexpr UnitType kLine = UnitType::LineInfantry;
constexpr UnitType kHussars = UnitType::LightCavalry;

struct GarrisonCase {
    std::vector<UnitType> others;  // before it in the slots of its area
    UnitType type;
    int strength;
    bool enemyHere;
    int actionPoints;  // afterwards, 1 before
    bool holds;
};

const GarrisonCase kGarrisons[] = {
    {{}, kLine, 4, false, 0, true},          {{}, kHussars, 4, false, 0, true},
    {{}, kLine, 4, true, 0, false},          {{}, kLine, 1, true, 0, true},
    {{kHussars}, kLine, 4, false, 1, false},  // not in the first slot
    {{kHussars}, kLine, 4, true, 0, false},  {{kLine}, kLine, 4, true, 1, false},
    {{kLine}, kHussars, 4, true, 1, false},
};

TEST(HoldObjectives, LeavesAGarrison) {
    for (const GarrisonCase& given : kGarrisons) {
        SCOPED_TRACE("case " + std::to_string(&given - kGarrisons));
        FieldPlan plan = OpponentPlan();
        plan.paint = [](Cell cell, MapCell& ground) {
            if (cell == Cell{kFieldAreaWidth + 4, 3}) ground.objective = 5;
        };
        OpponentField field(plan);
        int slot = 0;
        for (UnitType type : given.others) {
            Unit other = MakeUnit(type);
            other.actionPoints = 0;
            field.Add(kPrussian, kMiddle, ++slot, other);
        }
        Unit unit = MakeUnit(given.type);
        unit.strength = given.strength;
        const UnitId id = field.Add(kPrussian, kMiddle, ++slot, unit);
        if (given.enemyHere) field.Add(kFrench, kMiddle, 1, MakeUnit(kLine));
        field.TakeInHand(id);
        HoldObjectives(field.game);
        EXPECT_EQ(field.game.At(id).actionPoints, given.actionPoints);
        EXPECT_EQ(field.game.At(id).activity == UnitActivity::Hold, given.holds);
    }
}

TEST(HoldObjectives, LeadsAUnitOffByTheExitOfItsArmyUnlessTheEnemyIsThere) {
    for (const bool enemyHere : {false, true}) {
        FieldPlan plan = OpponentPlan();
        plan.paint = [](Cell cell, MapCell& ground) {
            if (cell == Cell{kFieldAreaWidth, 0}) ground.objective = 7;
        };
        OpponentField field(plan);
        const UnitId id = field.Add(kPrussian, kMiddle, 1, MakeUnit(kLine));
        if (enemyHere) field.Add(kFrench, kMiddle, 1, MakeUnit(kLine));
        field.TakeInHand(id);
        HoldObjectives(field.game);
        EXPECT_EQ(IsOnMap(field.game, id), enemyHere);
        EXPECT_EQ(field.game.loss.frenchLossPoints > 0, !enemyHere);
    }
}

struct ContactCase {
    int own;                          // units in the area
    int enemies;                      // units in the area
    std::array<int, 3> actionPoints;  // of the own ones afterwards, 1 before
};

constexpr ContactCase kContacts[] = {
    {1, 0, {1, 0, 0}}, {1, 1, {0, 0, 0}}, {2, 1, {1, 1, 0}}, {3, 1, {1, 1, 1}},
    {2, 2, {0, 0, 0}}, {3, 2, {0, 0, 1}}, {1, 2, {0, 0, 0}},
};

TEST(StayInContact, BindsTheFrontOfAnAreaThatBothSidesHold) {
    for (const ContactCase& given : kContacts) {
        SCOPED_TRACE(std::to_string(given.own) + " against " + std::to_string(given.enemies));
        OpponentField field;
        for (int slot = 1; slot <= given.enemies; ++slot)
            field.Add(kFrench, kMiddle, slot, MakeUnit(kLine));
        for (int slot = 1; slot <= given.own; ++slot)
            field.Add(kPrussian, kMiddle, slot, MakeUnit(kLine));
        field.game.state.currentArmy = kPrussian;
        StayInContact(field.game);
        for (int index = 1; index <= given.own; ++index) {
            EXPECT_EQ(field.game.At({kPrussian, index}).actionPoints,
                      given.actionPoints[static_cast<std::size_t>(index - 1)]);
        }
    }
}

TEST(AdvanceGenerally, StopsBeforeAnEnemyOnTheWayOfTwoAreas) {
    FieldPlan plan = OpponentPlan();
    plan.links.push_back(
        {.from = kWest, .to = kEast, .secondStep = SecondStep::Open, .viaArea = kMiddle});
    for (const bool full : {false, true}) {
        OpponentField field(plan);
        Game& game = field.game;
        game.turnLog.advanceDirection = 2;
        Unit rider = MakeUnit(UnitType::HeavyCavalry);
        rider.actionPoints = 2;
        const UnitId id = field.Add(kFrench, kWest, 1, rider);
        field.Add(kPrussian, kMiddle, 1, MakeUnit(kLine));
        Unit idle = MakeUnit(kLine);
        idle.actionPoints = 0;
        for (int slot = 1; slot <= (full ? 3 : 0); ++slot)
            field.Add(kFrench, kMiddle, slot, idle);
        field.TakeInHand(id);
        AdvanceGenerally(game);
        EXPECT_EQ(game.At(id).Place(), field.SlotCell(Side::French, full ? kWest : kMiddle, 1));
        EXPECT_EQ(game.At(id).actionPoints, 0);
        EXPECT_EQ(game.ArmyInPlay().commandPoints, OpponentField::kPoints - 1);
    }
}

TEST(RallyUnits, SpendsPointsThatTheArmyDoesNotHave) {
    OpponentField field;
    Unit shaken = MakeUnit(kLine);
    shaken.status = UnitStatus::Shaken;
    Unit routed = MakeUnit(kHussars);
    routed.status = UnitStatus::Routed;
    const UnitId wavers = field.Add(kFrench, kMiddle, 1, shaken);
    routed.morale = routed.maxMorale - 1;
    const UnitId runs = field.Add(kFrench, kMiddle, 2, routed);
    field.game.Army(kFrench).commandPoints = 0;
    field.TakeInHand(wavers);
    RallyUnits(field.game);
    EXPECT_EQ(field.game.At(wavers).status, UnitStatus::Unsteady);
    EXPECT_EQ(field.game.At(wavers).morale, 5);  // 65 of 100 of 8
    EXPECT_EQ(field.game.At(runs).status, UnitStatus::Routed) << "short of full morale";
    EXPECT_EQ(field.game.ArmyInPlay().commandPoints, -1);
}

}  // namespace
}  // namespace varnstride
