// Which of the enemies in reach is picked, and what marking them leaves in the records.
#include "opponent/target_pick.h"

#include <gtest/gtest.h>

#include "opponent/opponent_field.h"

namespace varnstride {
namespace {

constexpr int kWest = 1;
constexpr int kMiddle = 2;
constexpr int kEast = 3;

struct PickField : OpponentField {
    TargetMarks marks;
    UnitId picker;

    // The picker stands in the middle and reaches all three areas.
    explicit PickField(int army = kFrench, int strength = 4) {
        Unit unit = MakeUnit(UnitType::LineInfantry);
        unit.strength = strength;
        picker = Add(army, kMiddle, 1, unit);
    }
    UnitId AddEnemy(int army, int area, int slot, UnitType type, int strength) {
        Unit unit = MakeUnit(type);
        unit.strength = strength;
        return Add(army, area, slot, unit);
    }
    UnitId Pick(std::span<const TargetClass> classes, Marked who = Marked::All, int reach = 1) {
        TakeInHand(picker);
        ShadeReachFrom(game, reach);
        marks.MarkEnemiesInReach(game, who);
        return marks.Pick(game, classes);
    }
};

TEST(TargetPick, TakesTheHighestRecordOfTheLowestArmyInTheFirstClassThatHasOne) {
    PickField field;
    const UnitId foot = field.AddEnemy(kPrussian, kWest, 1, UnitType::LineInfantry, 4);
    EXPECT_EQ(field.Pick(kBarrageTargets), foot);
    const UnitId later = field.AddEnemy(kPrussian, kEast, 1, UnitType::LineInfantry, 4);
    EXPECT_EQ(field.Pick(kBarrageTargets), later);
    const UnitId british = field.AddEnemy(kBritish, kWest, 2, UnitType::LineInfantry, 4);
    EXPECT_EQ(field.Pick(kBarrageTargets), british);
    const UnitId horse = field.AddEnemy(kPrussian, kEast, 2, UnitType::HeavyCavalry, 4);
    EXPECT_EQ(field.Pick(kBarrageTargets), horse);
    EXPECT_EQ(field.Pick(kInfantryTargets), british);
}

TEST(TargetPick, PassesOverTheStrongerAndGivesUpGunsInCompany) {
    PickField field;
    const UnitId foot = field.AddEnemy(kPrussian, kWest, 1, UnitType::LineInfantry, 4);
    field.AddEnemy(kPrussian, kWest, 2, UnitType::LineInfantry, 5);
    EXPECT_EQ(field.Pick(kInfantryTargets), foot);
    const UnitId guns = field.AddEnemy(kPrussian, kEast, 1, UnitType::FieldArtillery, 9);
    EXPECT_EQ(field.Pick(kInfantryTargets), guns);
    field.AddEnemy(kPrussian, kEast, 2, UnitType::Leader, 1);
    EXPECT_EQ(field.Pick(kInfantryTargets), foot);
    EXPECT_EQ(field.Pick(kChargeTargets), guns);
}

TEST(TargetPick, LooksForTheWeakAlone) {
    PickField field;
    field.AddEnemy(kPrussian, kWest, 1, UnitType::LineInfantry, 2);
    EXPECT_EQ(field.Pick(kChargeTargets, Marked::StrengthOneOnly), UnitId{});
    const UnitId weak = field.AddEnemy(kPrussian, kEast, 1, UnitType::LineInfantry, 1);
    field.AddEnemy(kPrussian, kEast, 2, UnitType::LineInfantry, 3);
    EXPECT_EQ(field.Pick(kChargeTargets, Marked::StrengthOneOnly), weak);
}

TEST(TargetPick, MarksEveryOtherArmyAndPicksTheEnemyAlone) {
    PickField field(kPrussian);
    Game& game = field.game;
    const UnitId ally = field.AddEnemy(kBritish, kWest, 1, UnitType::LineInfantry, 1);
    const UnitId far = field.AddEnemy(kFrench, kEast, 1, UnitType::LineInfantry, 1);
    const UnitId near = field.AddEnemy(kFrench, kMiddle, 1, UnitType::LineInfantry, 1);
    const auto marksOf = [&] {
        return std::array{game.At(ally).inCommand, game.At(far).inCommand, game.At(near).inCommand,
                          game.At(field.picker).inCommand};
    };
    for (UnitId id : {ally, far, near, field.picker})
        game.At(id).inCommand = 1;
    EXPECT_EQ(field.Pick(kInfantryTargets, Marked::All, 0), near);
    EXPECT_EQ(marksOf(), (std::array{0, 0, 1, 1}));
    EXPECT_EQ(field.Pick(kInfantryTargets), near);
    EXPECT_EQ(marksOf(), (std::array{1, 1, 1, 1}));
    EXPECT_EQ(field.Pick(kInfantryTargets, Marked::All, 0), near);
    EXPECT_EQ(marksOf(), (std::array{0, 0, 1, 1}));
}

}  // namespace
}  // namespace varnstride
