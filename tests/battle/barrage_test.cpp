// Guns at a distance: which can fire, how far they reach, and what their shells set on fire.
#include "battle/barrage.h"

#include <gtest/gtest.h>

#include <cstring>

#include "battle/attack_field.h"

namespace varnstride {
namespace {

TEST(Barrage, ReachesByThePieceAndFartherFromTheGrandBattery) {
    struct Case {
        Weapon weapon;
        const char* name;
        Cell at;
        int army;
        int map;
        int reach;
    };
    constexpr const char* kOldGuard = "6e Compagnie du Regt FA Old Guard";
    constexpr const char* kMarine = "1/1 Marine FA Compagnie Middle Guard";
    const Case cases[] = {
        {Weapon::ThreePounder, "Battery", {40, 40}, kFrench, 7, 1},
        {Weapon::SixPounder, "Battery", {40, 40}, kFrench, 7, 1},
        {Weapon::TwelvePounder, "Battery", {1, 1}, kPrussian, 7, 2},
        {Weapon::Rocket, "Battery", {1, 1}, kBritish, 7, 1},
        {Weapon::SixPounder, kOldGuard, {39, 36}, kFrench, 7, 2},
        {Weapon::SixPounder, kMarine, {50, 47}, kFrench, 7, 2},
        {Weapon::SixPounder, kOldGuard, {51, 45}, kFrench, 7, 1},  // areaId 28 from x 51 on
        {Weapon::SixPounder, kOldGuard, {51, 44}, kFrench, 7, 2},
        {Weapon::SixPounder, kOldGuard, {38, 40}, kFrench, 7, 1},
        {Weapon::SixPounder, kOldGuard, {40, 40}, kBritish, 7, 1},
        {Weapon::SixPounder, kOldGuard, {40, 40}, kFrench, 3, 1},
    };
    FieldPlan plan;
    plan.mapNumber = 7;
    plan.columns = 8;
    plan.rows = 9;
    plan.paint = [](Cell cell, MapCell& map) {
        map.areaId = cell.x <= 50 ? 26 : cell.y == 45 ? 27 : 28;
    };
    for (const Case& given : cases) {
        Field field(plan);
        field.game.header.mapNumber = given.map;
        Unit gun = MakeUnit(UnitType::FieldArtillery);
        gun.weapon = given.weapon;
        std::strcpy(gun.name.data(), given.name);
        const UnitId id = field.AddAt(given.army, given.at, gun);
        EXPECT_EQ(ReachOfGun(field.game, id), given.reach)
            << given.name << " at " << given.at.x << ", " << given.at.y;
    }
}

TEST(Barrage, IsFiredByReadyGunsWithoutAnEnemyBesideThem) {
    struct Case {
        const char* what;
        bool able;
        std::function<void(Unit&)> change;
        bool enemy = false;
    };
    const Case cases[] = {
        {"ready", true, [](Unit&) {}},
        {"shaken", true, [](Unit& gun) { gun.status = UnitStatus::Shaken; }},
        {"mortars", true, [](Unit& gun) { gun.type = UnitType::MortarArtillery; }},
        {"routed", false, [](Unit& gun) { gun.status = UnitStatus::Routed; }},
        {"one load", false, [](Unit& gun) { gun.ammunition = 1; }},
        {"has moved", false, [](Unit& gun) { gun.actionPoints = 0; }},
        {"wagons", false, [](Unit& gun) { gun.type = UnitType::SupplyWagon; }},
        {"comes later", false, [](Unit& gun) { gun.arrivalTurn = 9; }},
        {"contact", false, [](Unit&) {}, true},
    };
    for (const Case& given : cases) {
        AttackField field;
        Unit gun = Fighter(UnitType::FieldArtillery);
        given.change(gun);
        const UnitId id = field.Add(kFrench, AttackField::kMiddle, 1, gun);
        if (given.enemy) field.Add(kBritish, AttackField::kMiddle, 1, Fighter(UnitType::Lancers));
        field.Add(kBritish, AttackField::kEast, 1, Fighter(UnitType::FieldArtillery));
        const std::vector<UnitId> able = FindAbleGuns(field.game);
        EXPECT_EQ(able, given.able ? std::vector<UnitId>{id} : std::vector<UnitId>{}) << given.what;
    }
}

TEST(Barrage, SetsTheFirstHouseOfTheEnemyOnFireOnceInTen) {
    struct Case {
        UnitType attacker;
        int burnsAlready;  // slot; 0 none
        int catches;       // slot; 0 none
    };
    const Case cases[] = {
        {UnitType::FieldArtillery, 0, 1},
        {UnitType::FieldArtillery, 1, 3},  // slot 2 is a meadow
        {UnitType::Lancers, 0, 0},
    };
    constexpr int kTries = 2000;
    FieldPlan plan = RowOfThree();
    plan.paint = [](Cell cell, MapCell& map) {
        if (cell == Cell{17, 4}) map.terrainTile = 24;  // village
        if (cell == Cell{21, 4}) map.terrainTile = 39;  // building
    };
    for (const Case& given : cases) {
        AttackField field(plan);
        const auto house = [&](int slot) -> int& {
            return field.game.grid.At(field.SlotCell(Side::Allied, field.kEast, slot)).roadTile;
        };
        field.TakeInHand(field.Add(kFrench, field.kMiddle, 1, Fighter(given.attacker)));
        field.game.state.selectedCell = field.SlotCell(Side::Allied, field.kEast, 1);
        SelectArea(field.game);
        std::array<int, 4> fires{};
        for (int attempt = 0; attempt < kTries; ++attempt) {
            for (int slot : {1, 2, 3})
                house(slot) = slot == given.burnsAlready ? kFire : kNoRoad;
            CheckBuildingFire(field.game);
            for (int slot : {1, 2, 3}) {
                const bool burns = house(slot) == kFire && slot != given.burnsAlready;
                fires[static_cast<std::size_t>(slot)] += burns ? 1 : 0;
            }
        }
        for (int slot : {1, 2, 3}) {
            const int expected = slot == given.catches ? kTries / 10 : 0;
            EXPECT_NEAR(fires[static_cast<std::size_t>(slot)], expected, expected / 4) << slot;
        }
    }
}

}  // namespace
}  // namespace varnstride
