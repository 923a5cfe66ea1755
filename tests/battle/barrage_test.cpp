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
        const char* what;
        UnitType attacker;
        bool firstBurns;
        int house;  // slot that catches; 0 none
    };
    const Case cases[] = {
        {"guns", UnitType::FieldArtillery, false, 1},
        {"guns, the first burns already", UnitType::FieldArtillery, true, 3},
        {"horse", UnitType::Lancers, false, 0},
    };
    constexpr int kTries = 2000;
    FieldPlan plan = RowOfThree();
    plan.paint = [](Cell cell, MapCell& map) {
        constexpr int kVillage = 24;
        constexpr int kBuilding = 39;
        if (cell == Cell{17, 4}) map.terrainTile = kVillage;
        if (cell == Cell{21, 4}) map.terrainTile = kBuilding;
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.what);
        AttackField field(plan);
        const Cell first = field.SlotCell(Side::Allied, AttackField::kEast, 1);
        field.TakeInHand(field.Add(kFrench, AttackField::kMiddle, 1, Fighter(given.attacker)));
        field.game.state.selectedCell = first;
        SelectArea(field.game);
        std::array<int, 4> fires{};
        for (int attempt = 0; attempt < kTries; ++attempt) {
            for (PlayCell& cell : field.game.grid.PlayCells())
                cell.roadTile = kNoRoad;
            if (given.firstBurns) field.game.grid.At(first).roadTile = kFire;
            CheckBuildingFire(field.game);
            for (int slot = given.firstBurns ? 2 : 1; slot <= 3; ++slot) {
                const Cell cell = field.SlotCell(Side::Allied, AttackField::kEast, slot);
                if (field.game.grid.At(cell).roadTile == kFire) {
                    ++fires[static_cast<std::size_t>(slot)];
                }
            }
        }
        int others = 0;
        for (int slot = 1; slot <= 3; ++slot) {
            if (slot != given.house) others += fires[static_cast<std::size_t>(slot)];
        }
        EXPECT_EQ(others, 0);
        if (given.house == 0) continue;
        EXPECT_NEAR(fires[static_cast<std::size_t>(given.house)], kTries / 10, kTries / 40);
        EXPECT_EQ(field.witness.Heard().back(), "courier 271");
    }
}

}  // namespace
}  // namespace varnstride
