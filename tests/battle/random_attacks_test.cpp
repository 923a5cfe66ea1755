// Attacks of all kinds on crowded fields: whatever the dice bring, who stands where, what was lost
// and what is booked agree afterwards.
#include <gtest/gtest.h>

#include <random>

#include "battle/attack_field.h"

namespace varnstride {
namespace {

class Chance {
 public:
    explicit Chance(unsigned seed) : engine_(seed) {}
    int From(int first, int last) {
        return first + static_cast<int>(engine_() % static_cast<unsigned>(last - first + 1));
    }
    bool Of(int percent) { return From(1, 100) <= percent; }

 private:
    std::mt19937 engine_;
};

Unit RandomFighter(Chance& chance) {
    Unit unit = Fighter(static_cast<UnitType>(chance.From(1, 18)));
    unit.strength = chance.From(1, 7);
    unit.initialStrength = 7;
    unit.maxMorale = chance.From(5, 30);
    unit.morale = chance.From(1, unit.maxMorale);
    unit.status = static_cast<UnitStatus>(chance.From(1, 4));
    unit.formation = static_cast<Formation>(chance.From(0, 6));
    unit.quality = static_cast<Quality>(chance.From(1, 5));
    unit.weapon = static_cast<Weapon>(chance.From(1, 9));
    unit.ammunition = chance.From(0, 4);
    unit.actionPoints = chance.From(0, 2);
    if (chance.Of(10)) unit.activity = UnitActivity::Charging;
    if (chance.Of(10)) unit.activity = UnitActivity::BayonetCharge;
    return unit;
}

FieldPlan RandomGround(Chance& chance) {
    FieldPlan plan = RowOfThree();
    plan.rows = 2;
    for (int area = 1; area <= 3; ++area) {
        plan.links.push_back({.from = area, .to = area + 3, .firstStep = FirstStep::FootOnly});
        plan.links.push_back({.from = area + 3, .to = area, .firstStep = FirstStep::Open});
    }
    plan.paint = [&](Cell, MapCell& cell) {
        if (chance.Of(40)) cell.terrainTile = chance.From(0, 101);
        if (chance.Of(5)) cell.roadTile = kFire;
        if (chance.Of(10)) cell.groundTile = 80;
    };
    return plan;
}

struct Melee : AttackField {
    explicit Melee(Chance& chance) : AttackField(RandomGround(chance)) {
        for (int area = 1; area <= game.atlas->AreaCount(); ++area) {
            Crowd(chance, kFrench, area);
            Crowd(chance, chance.Of(50) ? kBritish : kPrussian, area);
        }
        game.header.visibility = chance.Of(20) ? 5 : 20;
        game.options.smokeOn = chance.From(0, 1);
        game.settings.quickResults = chance.From(0, 1);
        game.settings.battleSounds = chance.From(0, 1);
        game.state.moveCost = chance.From(0, 2);
        game.turnLog.advanceDirection = chance.From(0, 6);
        game.battle.combinedArms = chance.From(0, 1);
    }

    void Crowd(Chance& chance, int army, int area) {
        const int units = chance.From(0, kSlotsPerSide);
        for (int slot = 1; slot <= units; ++slot)
            all.push_back(Add(army, area, slot, RandomFighter(chance)));
    }
    // What a side has left and what is booked as its loss.
    int Account(Side side) const {
        int sum = side == Side::French ? game.loss.frenchLossSP : game.loss.alliedLossSP;
        for (UnitId id : all)
            sum += SideOf(id.army) == side ? game.At(id).strength : 0;
        return sum;
    }

    std::vector<UnitId> all;
};

void ExpectUnitSound(const Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    EXPECT_GE(unit.morale, 0);
    EXPECT_GE(unit.ammunition, 0);
    EXPECT_EQ(unit.strength > 0, unit.status != UnitStatus::Destroyed);
    if (unit.strength == 0) {
        EXPECT_EQ(unit.Place(), kNoCell);
        EXPECT_EQ(unit.morale, 0);
        return;
    }
    EXPECT_EQ(UnitStandingAt(game, unit.Place()), id);
    EXPECT_EQ(game.grid.At(unit.Place()).occupant, id.army + 1);
}

void ExpectSound(const Melee& melee) {
    const Game& game = melee.game;
    int alive = 0;
    for (UnitId id : melee.all) {
        ExpectUnitSound(game, id);
        alive += game.At(id).strength > 0 ? 1 : 0;
    }
    int marks = 0;
    for (const AreaRow& row : game.atlas->Rows()) {
        for (Cell slot : row.Slots())
            marks += IsHeld(game, slot) ? 1 : 0;
    }
    EXPECT_EQ(marks, alive);
    EXPECT_EQ(game.battle.targetUnit, 0);
    EXPECT_FALSE(game.battle.attackRunning);
    EXPECT_EQ(game.state.retreatUnderFire, 0);
}

void AttackOnce(Melee& melee, Chance& chance) {
    const int count = static_cast<int>(melee.all.size());
    const UnitId attacker = melee.all[static_cast<std::size_t>(chance.From(0, count - 1))];
    if (melee.game.At(attacker).strength == 0) return;
    melee.game.At(attacker).canMove = 1;
    const int french = melee.Account(Side::French);
    const int allied = melee.Account(Side::Allied);
    std::vector<UnitStatus> before;
    for (UnitId id : melee.all)
        before.push_back(melee.game.At(id).status);
    melee.Attack(attacker);
    ExpectSound(melee);
    EXPECT_EQ(melee.Account(Side::French), french);
    EXPECT_EQ(melee.Account(Side::Allied), allied);
    EXPECT_EQ(melee.game.state.currentArmy, attacker.army);
    for (std::size_t unit = 0; unit < before.size(); ++unit)
        EXPECT_LE(melee.game.At(melee.all[unit]).status, before[unit]);
}

TEST(RandomAttacks, KeepTheFieldSound) {
    std::size_t fought = 0;
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Chance chance(seed);
        Melee melee(chance);
        if (melee.all.empty()) continue;
        for (int attack = 0; attack < 20 && !testing::Test::HasFailure(); ++attack)
            AttackOnce(melee, chance);
        fought += melee.witness.reports.size();
    }
    EXPECT_GT(fought, 2000U);
}

}  // namespace
}  // namespace varnstride
