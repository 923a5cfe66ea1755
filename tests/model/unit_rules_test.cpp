// The figures of a unit: status from morale, Action Points of a turn, worth of a strength point.
#include "model/unit_rules.h"

#include <gtest/gtest.h>

#include "support/field.h"

namespace varnstride {
namespace {

struct StatusCase {
    int morale;
    int maxMorale;
    UnitStatus expected;
};

// Percentages are cut, not rounded: 79.9 is still Unsteady.
constexpr StatusCase kStatusCases[] = {
    {10, 10, UnitStatus::Ordered},      // 100
    {8, 10, UnitStatus::Ordered},       // 80
    {799, 1000, UnitStatus::Unsteady},  // 79.9
    {6, 10, UnitStatus::Unsteady},      // 60
    {59, 100, UnitStatus::Shaken},      // 59
    {5, 7, UnitStatus::Unsteady},       // 71.4
    {3, 5, UnitStatus::Unsteady},       // 60
    {4, 7, UnitStatus::Shaken},         // 57.1
    {4, 10, UnitStatus::Shaken},        // 40
    {39, 100, UnitStatus::Routed},      // 39
    {0, 9, UnitStatus::Routed},         // 0
    {12, 10, UnitStatus::Ordered},      // 120
};

TEST(Status, FollowsThePercentageOfMoraleLeft) {
    for (const StatusCase& given : kStatusCases) {
        Unit unit = MakeUnit(UnitType::LineInfantry);
        unit.formation = Formation::AttackColumn;
        unit.morale = given.morale;
        unit.maxMorale = given.maxMorale;
        RecomputeStatus(unit);
        EXPECT_EQ(unit.status, given.expected) << given.morale << " of " << given.maxMorale;
        const bool routed = given.expected == UnitStatus::Routed;
        EXPECT_EQ(unit.formation, routed ? Formation::NoFormation : Formation::AttackColumn);
    }
}

TEST(Status, StaysWithoutAMoraleToMeasureBy) {
    Unit unit = MakeUnit(UnitType::LineInfantry);
    unit.maxMorale = 0;
    unit.morale = 0;
    unit.status = UnitStatus::Unsteady;
    RecomputeStatus(unit);
    EXPECT_EQ(unit.status, UnitStatus::Unsteady);
}

TEST(Status, MoraleStopsAtNothing) {
    Unit unit = MakeUnit(UnitType::LineInfantry);
    unit.morale = 2;
    LoseMorale(unit, 5);
    EXPECT_EQ(unit.morale, 0);
    EXPECT_EQ(unit.status, UnitStatus::Routed);
}

struct PointsCase {
    const char* what;
    UnitType type;
    Formation formation;
    UnitActivity activity;
    int visibility;
    int expected;
};

constexpr auto kLine = Formation::Line;
constexpr auto kMarch = Formation::MarchColumn;
constexpr auto kIdle = UnitActivity::None;

constexpr PointsCase kPointsCases[] = {
    {"light infantry", UnitType::LightInfantry, kLine, kIdle, 20, 1},
    {"line in march column", UnitType::LineInfantry, kMarch, kIdle, 20, 2},
    {"guard in square", UnitType::GuardInfantry, Formation::Square, kIdle, 20, 1},
    {"engineers in march column", UnitType::Engineers, kMarch, kIdle, 20, 2},
    {"dismounted dragoons", UnitType::DragoonsDismounted, kLine, kIdle, 20, 1},
    {"leader", UnitType::Leader, kLine, kIdle, 20, 2},
    {"light cavalry", UnitType::LightCavalry, kLine, kIdle, 20, 2},
    {"guard cavalry", UnitType::GuardCavalry, kLine, kIdle, 20, 2},
    {"mortars", UnitType::MortarArtillery, kLine, kIdle, 20, 1},
    {"rockets", UnitType::RocketArtillery, kLine, kIdle, 20, 2},
    {"horse artillery", UnitType::HorseArtillery, kLine, kIdle, 20, 2},
    {"field artillery", UnitType::FieldArtillery, kLine, kIdle, 20, 1},
    {"wagon", UnitType::SupplyWagon, kLine, kIdle, 20, 1},
    {"march column at 8", UnitType::LineInfantry, kMarch, kIdle, 8, 2},
    {"march column at 7", UnitType::LineInfantry, kMarch, kIdle, 7, 1},
    {"leader at 7", UnitType::Leader, kLine, kIdle, 7, 1},
    {"line at 4", UnitType::LineInfantry, kLine, kIdle, 4, 1},
    {"line at 3", UnitType::LineInfantry, kLine, kIdle, 3, 0},
    {"guard at 3", UnitType::GuardInfantry, kLine, kIdle, 3, 0},
    {"light infantry at 3", UnitType::LightInfantry, kLine, kIdle, 3, 1},
    {"dismounted dragoons at 3", UnitType::DragoonsDismounted, kLine, kIdle, 3, 1},
    {"leader at 3", UnitType::Leader, kLine, kIdle, 3, 1},
    {"light cavalry at 3", UnitType::LightCavalry, kLine, kIdle, 3, 1},
    {"lancers at 3", UnitType::Lancers, kLine, kIdle, 3, 0},
    {"field artillery at 3", UnitType::FieldArtillery, kLine, kIdle, 3, 0},
    {"palisade in hand", UnitType::LightInfantry, kLine, UnitActivity::Palisade, 20, 0},
    {"burning a building", UnitType::Engineers, kMarch, UnitActivity::BurningBuilding, 20, 0},
    {"charging", UnitType::LightCavalry, kLine, UnitActivity::Charging, 20, 2},
    {"holding", UnitType::LineInfantry, kLine, UnitActivity::Hold, 20, 1},
};

TEST(ActionPoints, FollowArmFormationLightAndWork) {
    for (const PointsCase& given : kPointsCases) {
        Unit unit = MakeUnit(given.type);
        unit.formation = given.formation;
        unit.activity = given.activity;
        EXPECT_EQ(ComputeActionPoints(unit, given.visibility), given.expected) << given.what;
    }
}

struct ValueCase {
    UnitType type;
    Quality quality;
    Weapon weapon;
    int expected;
};

constexpr ValueCase kValueCases[] = {
    {UnitType::LightInfantry, Quality::Militia, Weapon::None, 5},
    {UnitType::LightInfantry, Quality::Conscript, Weapon::None, 4},
    {UnitType::LightInfantry, Quality::Elite, Weapon::Rifle, 7},
    {UnitType::LineInfantry, Quality::Veteran, Weapon::Musket, 6},
    {UnitType::LineInfantry, Quality::Conscript, Weapon::Musket, 5},
    {UnitType::GuardInfantry, Quality::Elite, Weapon::Musket, 8},
    {UnitType::LightDragoonsDismounted, Quality::Experienced, Weapon::Carbine, 11},
    {UnitType::LightDragoonsDismounted, Quality::Conscript, Weapon::Musket, 10},
    {UnitType::Engineers, Quality::Conscript, Weapon::Carbine, 15},
    {UnitType::DragoonsDismounted, Quality::Conscript, Weapon::Carbine, 11},
    {UnitType::Leader, Quality::Conscript, Weapon::None, 40},
    {UnitType::Leader, Quality::Elite, Weapon::Musket, 42},
    {UnitType::LightCavalry, Quality::Experienced, Weapon::Carbine, 10},
    {UnitType::Lancers, Quality::Conscript, Weapon::Lance, 10},
    {UnitType::HeavyCavalry, Quality::Elite, Weapon::Sabre, 14},
    {UnitType::MediumCavalry, Quality::Experienced, Weapon::Carbine, 13},
    {UnitType::CossackCavalry, Quality::Experienced, Weapon::Lance, 0},
    {UnitType::GuardCavalry, Quality::Elite, Weapon::Sabre, 0},
    {UnitType::MortarArtillery, Quality::Experienced, Weapon::Musket, 2},
    {UnitType::RocketArtillery, Quality::Experienced, Weapon::Musket, 30},
    {UnitType::HorseArtillery, Quality::Experienced, Weapon::SixPounder, 35},
    {UnitType::HorseArtillery, Quality::Experienced, Weapon::ThreePounder, 30},
    {UnitType::FieldArtillery, Quality::Conscript, Weapon::TwelvePounder, 30},
    {UnitType::SupplyWagon, Quality::Experienced, Weapon::Musket, 25},
};

TEST(StrengthPointValue, FollowsArmQualityAndWeapon) {
    for (const ValueCase& given : kValueCases) {
        Unit unit = MakeUnit(given.type);
        unit.quality = given.quality;
        unit.weapon = given.weapon;
        const int type = static_cast<int>(given.type);
        EXPECT_EQ(ValueOfStrengthPoint(unit), given.expected) << "type " << type;
        unit.maxMorale = 7;
        EXPECT_EQ(ValueOfUnit(unit), 7 * given.expected) << "type " << type;
    }
}

}  // namespace
}  // namespace varnstride
