// One attack step by step: the gates, the hits, what is spent, who runs and who surrenders.
#include <gtest/gtest.h>

#include <functional>

#include "battle/attack_field.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

using Heard = std::vector<std::string>;

struct Duel : AttackField {
    Duel(UnitType attacker, UnitType target, const FieldPlan& plan = RowOfThree())
        : AttackField(plan) {
        attackerId = Add(kFrench, kMiddle, 1, Fighter(attacker));
        targetId = Add(kBritish, kMiddle, 1, Fighter(target));
    }

    Unit& A() { return game.At(attackerId); }
    Unit& T() { return game.At(targetId); }
    void Fight() { Attack(attackerId); }
    const AttackReport& Report() const { return witness.reports.back(); }

    // Nobody fails a test: the attacker by his card, a target by its quality.
    void KeepNerves() {
        game.state.steadyNerves = 1;
        game.state.steadyNervesArmy = kFrench;
        T().quality = Quality::Elite;
    }

    UnitId attackerId;
    UnitId targetId;
};

// The six slots of the middle area, or as many of them, are village.
FieldPlan VillageIn(int slots) {
    FieldPlan plan = RowOfThree();
    plan.paint = [slots](Cell cell, MapCell& mapCell) {
        const std::array<Cell, 6> places = {{{9, 1}, {11, 1}, {13, 1}, {9, 4}, {11, 4}, {13, 4}}};
        for (int slot = 0; slot < slots; ++slot) {
            if (cell == places[static_cast<std::size_t>(slot)]) mapCell.terrainTile = 24;
        }
    };
    return plan;
}

struct GateCase {
    const char* name;
    UnitType attacker;
    UnitType target;
    bool goes;
    Heard heard;
    std::function<void(Duel&)> change = [](Duel&) {};
    int villages = 0;
};

TEST(Gates, LetThroughWhomTheyShould) {
    using enum UnitType;
    const GateCase cases[] = {
        {"foot on foot", LineInfantry, GuardInfantry, true, {}},
        {"foot on a leader", LineInfantry, Leader, true, {}},
        {"foot on guns", LightInfantry, HorseArtillery, true, {}},
        {"foot on horse in the open", LineInfantry, HeavyCavalry, false, {"courier 2"}},
        {"foot on horse among houses", LineInfantry, HeavyCavalry, true, {}, [](Duel&) {}, 3},
        {"two houses are not enough", LineInfantry, Lancers, false, {"courier 2"}, [](Duel&) {}, 2},
        {"foot on a quarter of its strength",
         LineInfantry,
         Lancers,
         true,
         {},
         [](Duel& duel) { duel.T().strength = 1; }},
        {"foot on half its strength",
         LineInfantry,
         Lancers,
         false,
         {"courier 2"},
         [](Duel& duel) { duel.T().strength = 2; }},
        {"foot on mortars says nothing", LineInfantry, MortarArtillery, false, {}},
        {"foot on rockets says nothing", LineInfantry, RocketArtillery, false, {}},
        {"guns on horse", FieldArtillery, Lancers, true, {}},
        {"cossacks on their equals", CossackCavalry, LineInfantry, false, {"courier 3"}},
        {"cossacks on a quarter",
         CossackCavalry,
         LineInfantry,
         true,
         {},
         [](Duel& duel) { duel.T().strength = 1; }},
        {"foot in march column",
         LineInfantry,
         LineInfantry,
         false,
         {"courier 1"},
         [](Duel& duel) { duel.A().formation = Formation::MarchColumn; }},
        {"march column before horse: the later reason",
         LineInfantry,
         Lancers,
         false,
         {"courier 2"},
         [](Duel& duel) { duel.A().formation = Formation::MarchColumn; }},
        {"silence under a weather card",
         LineInfantry,
         Lancers,
         false,
         {},
         [](Duel& duel) { duel.game.state.eventCard = 205; }},
        {"damp powder",
         LineInfantry,
         LineInfantry,
         false,
         {"courier 91"},
         [](Duel& duel) { duel.game.header.visibility = 7; }},
        {"damp powder does not stop horse",
         LightCavalry,
         LineInfantry,
         true,
         {},
         [](Duel& duel) { duel.game.header.visibility = 6; }},
        {"damp powder is not asked after the computer's passes",
         LineInfantry,
         LineInfantry,
         true,
         {},
         [](Duel& duel) {
             duel.game.header.visibility = 6;
             duel.game.state.opponentMark = 9;
         }},
        {"darker still they fire",
         LineInfantry,
         LineInfantry,
         true,
         {},
         [](Duel& duel) { duel.game.header.visibility = 5; }},
    };
    for (const GateCase& gate : cases) {
        Duel duel(gate.attacker, gate.target, VillageIn(gate.villages));
        duel.KeepNerves();
        gate.change(duel);
        duel.Fight();
        EXPECT_EQ(duel.HasFought(), gate.goes) << gate.name;
        EXPECT_EQ(duel.witness.Heard(), gate.heard) << gate.name;
        EXPECT_EQ(duel.A().canMove, gate.goes ? 0 : 1) << gate.name;
    }
}

TEST(Gates, TellWhyThereIsNoTarget) {
    struct NoTarget {
        UnitType attacker;
        Heard heard;
    };
    const NoTarget cases[] = {{UnitType::FieldArtillery, {"courier 4"}},
                              {UnitType::HeavyCavalry, {"courier 5"}},
                              {UnitType::LineInfantry, {"courier 206"}}};
    for (const NoTarget& noTarget : cases) {
        AttackField field;
        const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(noTarget.attacker));
        field.Attack(attacker);
        EXPECT_FALSE(field.HasFought());
        EXPECT_EQ(field.witness.Heard(), noTarget.heard);
    }
}

TEST(Gates, StopABarrageInPoorSight) {
    for (int visibility : {9, 10}) {
        AttackField field;
        field.game.header.visibility = visibility;
        const UnitId guns = field.Add(kFrench, field.kWest, 1, Fighter(UnitType::FieldArtillery));
        const UnitId target =
            field.Add(kBritish, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
        field.Bombard(guns, target);
        EXPECT_EQ(field.HasFought(), visibility == 10);
        EXPECT_EQ(field.witness.Heard(), visibility == 10 ? Heard{} : Heard{"courier 90"});
    }
}

TEST(Attacker, MustBeFreshSteadyAndArmed) {
    struct LeadCase {
        const char* name;
        UnitType type;
        bool leads;
        std::function<void(Unit&)> change;
    };
    const LeadCase cases[] = {
        {"fresh", UnitType::LineInfantry, true, [](Unit&) {}},
        {"has fought", UnitType::LineInfantry, false, [](Unit& unit) { unit.canMove = 0; }},
        {"no ammunition", UnitType::LineInfantry, false, [](Unit& unit) { unit.ammunition = 0; }},
        {"bayonets need none", UnitType::LineInfantry, true,
         [](Unit& unit) {
             unit.ammunition = 0;
             unit.activity = UnitActivity::BayonetCharge;
         }},
        {"horse needs none", UnitType::LightCavalry, true, [](Unit& unit) { unit.ammunition = 0; }},
        {"leader", UnitType::Leader, false, [](Unit&) {}},
        {"on hold", UnitType::LineInfantry, false,
         [](Unit& unit) { unit.activity = UnitActivity::Hold; }},
        {"shaken", UnitType::LineInfantry, false,
         [](Unit& unit) { unit.status = UnitStatus::Shaken; }},
        {"unsteady", UnitType::LineInfantry, true,
         [](Unit& unit) { unit.status = UnitStatus::Unsteady; }},
    };
    for (const LeadCase& lead : cases) {
        Duel duel(lead.type, UnitType::LineInfantry);
        duel.KeepNerves();
        duel.game.options.tacticalPlayOn = 1;
        lead.change(duel.A());
        duel.Fight();
        EXPECT_EQ(duel.HasFought(), lead.leads) << lead.name;
        EXPECT_EQ(duel.witness.Heard(), lead.leads ? Heard{} : Heard{"courier 7"}) << lead.name;
        EXPECT_EQ(duel.game.state.currentUnit, lead.leads ? duel.attackerId.index : 0) << lead.name;
        EXPECT_EQ(duel.game.battle.targetUnit, 0) << lead.name;
    }
}

struct HitCase {
    UnitType attacker;
    UnitType target;
    int targetStrength;
    int attackStrike;
    int defenderHit;
    int defenceStrike;
    int attackerHit;
};

// Everybody of strength 4 in Line, the targets elite, but where it says otherwise. A target of 1
// feels the whole hit, of 4 the half; an attacker of 4 the half.
TEST(Hits, OfArmsOnArms) {
    using enum UnitType;
    const HitCase cases[] = {
        // 20 / 3 = 6; 15 + 1 = 16 / 2 = 8
        {LineInfantry, LineInfantry, 4, 20, 3, 16, 4},
        // (5 + 3) x 4 = 32 / 3 = 10; 18 + 3 + 1 = 22 / 5 = 4
        {LineInfantry, FieldArtillery, 4, 32, 5, 22, 2},
        // (5 + 1) x 4 = 24 / 6 = 4; 7 + 1 = 8 / 5 = 1, at least 1
        {LineInfantry, LightCavalry, 1, 24, 4, 8, 1},
        // 20 / 3 = 6; 3 + 1 = 4 / 5 = 0, at least 1
        {LineInfantry, RocketArtillery, 1, 20, 6, 4, 1},
        // a leader steadies the area by his presence: 19 / 3 = 6; 3 + 1 = 4 / 2 = 2
        {LineInfantry, Leader, 4, 19, 3, 4, 1},
        // 27 / 5 = 5; 15 - 3 + 1 = 13 / 4 = 3
        {LightCavalry, LineInfantry, 4, 27, 2, 13, 1},
        // 21 / 3 = 7; 21 - 2 + 1 = 20 / 3 = 6
        {LightCavalry, LightCavalry, 4, 21, 3, 20, 3},
        // (7 + 4) x 3 = 33 / 4 = 8; 18 + 4 + 1 = 23 / 2 = 11
        {LightCavalry, FieldArtillery, 4, 33, 4, 23, 5},
        // horse on rockets: no row for the blow; 9 + 1 = 10, no row for the answer, at least 1
        {LightCavalry, RocketArtillery, 4, 21, 0, 10, 1},
        // (6 + 1) x 3 = 21 / 5 = 4; guns draw no answer
        {FieldArtillery, LightCavalry, 4, 21, 2, 0, 0},
        // 18 / 4 = 4
        {FieldArtillery, LineInfantry, 4, 18, 2, 0, 0},
        // 18 / 6 = 3
        {FieldArtillery, FieldArtillery, 4, 18, 1, 0, 0},
        // rockets: 3 x 3 = 9 and no row; 15 + 1 = 16, no row, at least 1
        {RocketArtillery, LineInfantry, 4, 9, 0, 16, 1},
    };
    for (const HitCase& hit : cases) {
        Duel duel(hit.attacker, hit.target);
        duel.KeepNerves();
        duel.game.state.moveCost = 3;  // from so far that nobody forms a square
        duel.T().strength = hit.targetStrength;
        // Rockets and mortars support nobody, so they get a friend.
        duel.Add(kFrench, duel.kWest, 1, Fighter(LightInfantry));
        duel.Fight();
        const std::string pair = std::to_string(static_cast<int>(hit.attacker)) + " on " +
                                 std::to_string(static_cast<int>(hit.target));
        ASSERT_TRUE(duel.HasFought()) << pair;
        EXPECT_EQ(duel.Report().attackStrike, hit.attackStrike) << pair;
        EXPECT_EQ(duel.Report().defenderHit, hit.defenderHit) << pair;
        EXPECT_EQ(duel.Report().defenceStrike, hit.defenceStrike) << pair;
        EXPECT_EQ(duel.Report().attackerHit, hit.attackerHit) << pair;
        EXPECT_EQ(duel.A().morale, 24 - hit.attackerHit - duel.Report().attackerLoss) << pair;
    }
}

TEST(Hits, AreThinnedBySize) {
    // 20 / 3 = 6 on the target; 15 / 2 = 7 on the attacker.
    const int onTarget[] = {6, 4, 3, 3, 2, 2};
    const int onAttacker[] = {7, 7, 4, 3, 3, 2};
    for (int strength = 1; strength <= 6; ++strength) {
        Duel blow(UnitType::LineInfantry, UnitType::LineInfantry);
        blow.T().strength = strength;
        blow.Fight();
        EXPECT_EQ(blow.Report().defenderHit, onTarget[strength - 1]) << strength;

        Duel answer(UnitType::LineInfantry, UnitType::LineInfantry);
        answer.A().strength = strength;
        answer.Fight();
        EXPECT_EQ(answer.Report().attackerHit, onAttacker[strength - 1]) << strength;
    }
}

TEST(Hits, AreSomethingAtLeast) {
    // A weak blow: 4 x 4 x 0.25 = 4, / 3 = 1, halved 0. A weak answer: 3 / 2 = 1, halved 0.
    const auto weaken = [](Duel& duel) {
        duel.A().quality = Quality::Militia;
        duel.A().formation = Formation::Square;
        duel.T().formation = Formation::AttackColumn;
    };
    Duel open(UnitType::LineInfantry, UnitType::LineInfantry);
    weaken(open);
    open.Fight();
    EXPECT_EQ(open.Report().defenderHit, 0);
    EXPECT_EQ(open.Report().attackerHit, 1);
    Duel village(UnitType::LineInfantry, UnitType::LineInfantry, VillageIn(2));
    weaken(village);
    village.Fight();
    EXPECT_EQ(village.Report().defenderHit, 1);
    EXPECT_EQ(village.Report().attackerHit, 2);
    // Guns: 3 pounders of 1 on a column of 6, 4 + 2 = 6, / 4 = 1, a third of it 0.
    struct GunCase {
        UnitType target;
        int hit;
    };
    for (const GunCase gun :
         {GunCase{UnitType::LineInfantry, 1}, GunCase{UnitType::LightInfantry, 0},
          GunCase{UnitType::LightDragoonsDismounted, 0},
          GunCase{UnitType::DragoonsDismounted, 0}}) {
        Duel duel(UnitType::FieldArtillery, gun.target);
        duel.A().strength = 1;
        duel.A().weapon = Weapon::ThreePounder;
        duel.T().strength = 6;
        duel.T().formation = Formation::AttackColumn;
        duel.Fight();
        EXPECT_EQ(duel.Report().defenderHit, gun.hit) << static_cast<int>(gun.target);
    }
}

TEST(Ammunition, IsSpentByTheWayOfFighting) {
    struct AmmunitionCase {
        const char* name;
        UnitType type;
        bool bayonets;
        int before;
        int after;
    };
    const AmmunitionCase cases[] = {
        {"volleys", UnitType::LineInfantry, false, 8, 6},
        {"the last volleys", UnitType::LineInfantry, false, 2, 0},
        {"one load", UnitType::LineInfantry, false, 1, 0},
        {"bayonets", UnitType::LineInfantry, true, 8, 8},
        {"bayonets with one load", UnitType::LineInfantry, true, 1, 0},
        {"bayonets with none", UnitType::LineInfantry, true, 0, 0},
        {"canister", UnitType::FieldArtillery, false, 2, 2},
        {"the last canister", UnitType::FieldArtillery, false, 1, 0},
        {"horse", UnitType::LightCavalry, false, 1, 1},
    };
    for (const AmmunitionCase& load : cases) {
        Duel duel(load.type, UnitType::LineInfantry);
        duel.KeepNerves();
        duel.A().ammunition = load.before;
        if (load.bayonets) duel.A().activity = UnitActivity::BayonetCharge;
        duel.Fight();
        EXPECT_EQ(duel.A().ammunition, load.after) << load.name;
        const bool answered = load.type != UnitType::FieldArtillery;
        EXPECT_EQ(duel.T().ammunition, answered ? 7 : 8) << load.name;
    }
    for (const auto& [before, after] : {std::pair{8, 6}, {3, 1}, {2, 0}, {1, 0}}) {
        AttackField field;
        Unit guns = Fighter(UnitType::HorseArtillery);
        guns.ammunition = before;
        const UnitId battery = field.Add(kFrench, field.kWest, 1, guns);
        const UnitId target =
            field.Add(kBritish, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
        field.Bombard(battery, target);
        EXPECT_EQ(field.game.At(battery).ammunition, after) << before;
    }
}

// Which infantry forms square before horse without a die; the rest is chance or never.
TEST(Square, IsFormedByHowFarHorseRides) {
    struct SquareCase {
        int moveCost;
        Quality quality;
        Formation horse;
        bool forms;
    };
    using enum Quality;
    const SquareCase cases[] = {
        {2, Militia, Formation::OpenOrder, true},    {2, Conscript, Formation::Line, false},
        {1, Veteran, Formation::AttackColumn, true}, {1, Veteran, Formation::OpenOrder, false},
        {1, Militia, Formation::Line, false},        {0, Experienced, Formation::Line, false},
        {0, Elite, Formation::OpenOrder, false},
    };
    for (const SquareCase& square : cases) {
        Duel duel(UnitType::LightCavalry, UnitType::LineInfantry);
        duel.KeepNerves();
        duel.game.state.moveCost = square.moveCost;
        duel.T().quality = square.quality;
        duel.A().formation = square.horse;
        duel.Fight();
        EXPECT_EQ(duel.T().formation == Formation::Square, square.forms)
            << square.moveCost << ' ' << static_cast<int>(square.quality);
    }
    Duel houses(UnitType::LightCavalry, UnitType::LineInfantry, VillageIn(2));
    houses.KeepNerves();
    houses.game.state.moveCost = 2;
    houses.Fight();
    EXPECT_EQ(houses.T().formation, Formation::Line);
}

TEST(Target, EliminatedLeavesItsSlotToTheNext) {
    Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
    const UnitId second = duel.Add(kBritish, duel.kMiddle, 2, Fighter(UnitType::LineInfantry));
    duel.T().strength = 1;
    duel.T().maxMorale = 5;
    const Cell front = duel.T().Place();
    duel.A().strength = 6;
    duel.A().formation = Formation::AttackColumn;  // 50 / 3 = 16, 15 dice: some lose it
    duel.game.generator.Seed(3);
    duel.Fight();
    ASSERT_GT(duel.Report().defenderLoss, 0);
    EXPECT_EQ(duel.Report().defenderLoss, 1);
    EXPECT_EQ(duel.T().strength, 0);
    EXPECT_EQ(duel.T().status, UnitStatus::Destroyed);
    EXPECT_EQ(duel.T().Place(), kNoCell);
    EXPECT_EQ(duel.game.At(second).Place(), front);
    EXPECT_EQ(duel.game.grid.At(front).occupant, kBritish + 1);
    EXPECT_EQ(duel.game.loss.alliedLossSP, 1);
    // line infantry without a weapon: 4 points, times the morale at the start
    EXPECT_EQ(duel.game.loss.alliedLossPoints, 4 * 5);
}

TEST(Rout, SpreadsOverTheAreaOnce) {
    Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
    const UnitId second = duel.Add(kBritish, duel.kMiddle, 2, Fighter(UnitType::LineInfantry));
    const UnitId elsewhere = duel.Add(kBritish, duel.kEast, 1, Fighter(UnitType::LineInfantry));
    duel.T().morale = 12;  // a hit of 3 leaves 9 of 24, 37 percent
    duel.T().status = UnitStatus::Ordered;
    duel.Prepare(duel.attackerId);
    ResolveAttackOn(duel.game, duel.targetId);
    EXPECT_EQ(duel.T().status, UnitStatus::Routed);
    EXPECT_EQ(duel.game.At(second).morale, 22);
    EXPECT_EQ(duel.game.At(elsewhere).morale, 24);
    duel.A().canMove = 1;
    duel.Prepare(duel.attackerId);
    ResolveAttackOn(duel.game, duel.targetId);
    EXPECT_EQ(duel.game.At(second).morale, 22);
}

Unit Routed(UnitType type) {
    Unit unit = Fighter(type);
    unit.morale = 8;
    unit.status = UnitStatus::Routed;
    unit.formation = Formation::NoFormation;
    return unit;
}

// The victor makes for the east, and there the beaten run, all of them.
TEST(Rout, RunsTheWayOfTheVictor) {
    AttackField field;
    const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
    const UnitId steady = field.Add(kBritish, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
    const UnitId first = field.Add(kBritish, field.kMiddle, 2, Routed(UnitType::LineInfantry));
    const UnitId other = field.Add(kBritish, field.kMiddle, 3, Routed(UnitType::LineInfantry));
    field.game.state.selectedSlot = 1;
    field.Prepare(attacker);
    ResolveAttackOn(field.game, first);
    EXPECT_EQ(field.game.At(first).Place(), field.SlotCell(Side::Allied, field.kEast, 1));
    EXPECT_EQ(field.game.At(other).Place(), field.SlotCell(Side::Allied, field.kEast, 2));
    EXPECT_EQ(field.game.At(steady).Place(), field.SlotCell(Side::Allied, field.kMiddle, 1));
    EXPECT_FALSE(IsHeld(field.game, field.SlotCell(Side::Allied, field.kMiddle, 2)));
    EXPECT_EQ(field.game.At(attacker).actionPoints, 0);
    EXPECT_EQ(field.game.state.selectedSlot, 0);
    EXPECT_EQ(field.game.state.retreatUnderFire, 0);
}

TEST(Rout, StaysWhereTheWayIsBarred) {
    AttackField field;
    const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
    const UnitId target = field.Add(kBritish, field.kMiddle, 1, Routed(UnitType::LineInfantry));
    field.Add(kFrench, field.kEast, 1, Fighter(UnitType::LineInfantry));
    field.Attack(attacker);
    const Cell slot = field.SlotCell(Side::Allied, field.kMiddle, 1);
    EXPECT_EQ(field.game.At(target).Place(), slot);
    EXPECT_TRUE(IsHeld(field.game, slot));
    EXPECT_EQ(field.witness.Heard(), Heard{"courier 211"});
}

TEST(Rout, DoesNotFollowABarrage) {
    AttackField field;
    const UnitId guns = field.Add(kFrench, field.kWest, 1, Fighter(UnitType::FieldArtillery));
    const UnitId target = field.Add(kBritish, field.kMiddle, 1, Routed(UnitType::LineInfantry));
    field.Bombard(guns, target);
    ASSERT_TRUE(field.HasFought());
    EXPECT_EQ(field.game.At(target).Place(), field.SlotCell(Side::Allied, field.kMiddle, 1));
}

TEST(Surrender, NeedsFootOrHorseToTakeIt) {
    struct SurrenderCase {
        UnitType attacker;
        bool taken;
    };
    for (const SurrenderCase surrender : {SurrenderCase{UnitType::LineInfantry, true},
                                          {UnitType::LightCavalry, true},
                                          {UnitType::FieldArtillery, false}}) {
        AttackField field;
        const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(surrender.attacker));
        Unit beaten = Routed(UnitType::LineInfantry);
        beaten.morale = 1;
        beaten.strength = 5;  // above what one attack can cost
        const UnitId target = field.Add(kBritish, field.kMiddle, 1, beaten);
        field.Add(kFrench, field.kEast, 1, Fighter(UnitType::LineInfantry));  // bars the way
        field.Attack(attacker);
        const Unit& unit = field.game.At(target);
        EXPECT_EQ(unit.morale, 0);
        EXPECT_EQ(unit.strength == 0, surrender.taken);
        EXPECT_EQ(unit.Place() == kNoCell, surrender.taken);
        ASSERT_EQ(field.witness.dialogs.size(), surrender.taken ? 1U : 0U);
        if (!surrender.taken) continue;
        const Dialog& notice = field.witness.dialogs.front();
        EXPECT_EQ(notice.templateId, kSurrenderedUnitReport);
        EXPECT_EQ(notice.At(1402).text, "British Army");
        const int blow = field.witness.reports.front().defenderLoss;
        EXPECT_EQ(notice.At(1404).text, std::to_string(5 - blow));
        EXPECT_EQ(field.game.loss.alliedLossSP, 5);
        EXPECT_EQ(field.game.loss.alliedLossPoints, 5 * 4 * 24);
        EXPECT_FALSE(IsHeld(field.game, field.SlotCell(Side::Allied, field.kMiddle, 1)));
    }
}

// Militia at 45 percent, one against three, before heavy horse and a column scores at most
// 6 + 10 - 2 - 2 - 2 - 2 = 8 and breaks.
TEST(Nerve, OfAShakenTargetBreaksBeforeItAnswers) {
    Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
    duel.Add(kFrench, duel.kMiddle, 2, Fighter(UnitType::HeavyCavalry));
    duel.Add(kFrench, duel.kMiddle, 3, Fighter(UnitType::LineInfantry));
    duel.A().formation = Formation::AttackColumn;
    duel.T().quality = Quality::Militia;
    duel.T().status = UnitStatus::Shaken;
    duel.T().morale = 11;
    duel.Fight();
    EXPECT_EQ(duel.Report().attackerHit, 0);
    EXPECT_EQ(duel.Report().defenceStrike, 0);
    EXPECT_EQ(duel.T().status, UnitStatus::Routed);
    EXPECT_EQ(duel.witness.Heard().front(), "courier 79");
    EXPECT_EQ(duel.game.state.currentArmy, kFrench);
    EXPECT_EQ(duel.game.battle.defenderTested, 0);
}

TEST(Nerve, OfHorseFailsBeforeContact) {
    Duel duel(UnitType::LightCavalry, UnitType::LineInfantry);
    duel.Add(kBritish, duel.kMiddle, 2, Fighter(UnitType::HeavyCavalry));
    duel.Add(kBritish, duel.kMiddle, 3, Fighter(UnitType::LineInfantry));
    duel.A().quality = Quality::Conscript;
    duel.A().status = UnitStatus::Unsteady;
    duel.A().morale = 9;  // at or below 40 percent: no die, 10 - 2 - 1 - 2 = 5
    duel.Fight();
    EXPECT_FALSE(duel.HasFought());
    EXPECT_EQ(duel.witness.Heard(), Heard{"courier 278"});
    EXPECT_EQ(duel.A().status, UnitStatus::Routed);
    EXPECT_EQ(duel.A().morale, 8);  // 24 x 0.35
}

TEST(Smoke, CoversTheAttackersAreaAndNoMore) {
    Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
    duel.game.options.smokeOn = 1;
    bool raised = false;
    for (unsigned seed = 1; seed < 60 && !raised; ++seed) {
        duel.game.generator.Seed(seed);
        duel.A().canMove = 1;
        duel.A().strength = duel.T().strength = 4;
        duel.A().morale = duel.T().morale = 24;
        duel.A().status = duel.T().status = UnitStatus::Ordered;
        duel.A().ammunition = 8;
        duel.Fight();
        raised = duel.game.grid.At(duel.A().Place()).roadTile == kSmoke;
    }
    ASSERT_TRUE(raised);
    EXPECT_EQ(duel.game.grid.At({8, 0}).roadTile, kSmoke);
    EXPECT_EQ(duel.game.grid.At({15, 5}).roadTile, kSmoke);
    EXPECT_EQ(duel.game.grid.At({7, 0}).roadTile, kNoRoad);
    EXPECT_EQ(duel.game.grid.At({16, 5}).roadTile, kNoRoad);
}

TEST(Report, InTheBoxTellsTheCauses) {
    Duel duel(UnitType::LightCavalry, UnitType::LightInfantry, VillageIn(1));
    duel.KeepNerves();
    duel.game.settings.quickResults = 0;
    duel.game.state.moveCost = 3;
    duel.T().formation = Formation::OpenOrder;
    duel.A().quality = Quality::Veteran;
    duel.Fight();
    ASSERT_EQ(duel.witness.dialogs.size(), 1U);
    const Dialog& box = duel.witness.dialogs.front();
    EXPECT_EQ(box.templateId, kBattleResult);
    EXPECT_EQ(box.At(1402).text, "Light Cavaly");
    EXPECT_EQ(box.At(1404).text, "Light Inf");
    EXPECT_EQ(box.At(1405).text, "French");
    EXPECT_EQ(box.At(1642).text, "British");
    EXPECT_EQ(box.At(1098).text, std::to_string(duel.Report().defenderHit));
    const std::vector<std::string> lines = {
        " Combat effectiveness against enemy in area = 2",
        "Attacker moving or conducted bombardment  -1",
        "Veteran troops attacking  +1",
        "Defender Skirmishing against cavalry +5",
    };
    EXPECT_EQ(box.At(1285).lines, lines);  // the target in Open Order has cleared the ground
    EXPECT_EQ(duel.A().actionPoints, 0);
    EXPECT_EQ(duel.game.battle.terrainDefence, 0);
}

TEST(Report, TellsOfTacticsByLeadership) {
    const std::vector<std::string> told = {"", "French Tactics used - Flank Attack ",
                                           "British Tactical Response - Withdraw Slowly ",
                                           "Attacker Tactical Advantage  +8", ""};
    for (int leadership : {8, 7}) {
        Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
        duel.game.options.tacticalPlayOn = 1;
        BattleState& battle = duel.game.battle;
        battle.attackingSlots = 2;
        battle.chosenTactic = 4;
        battle.tacticalResponse = 3;
        battle.tacticalAdvantage = 2;
        battle.requiredLeadership = 8;
        battle.combinedLeadership = leadership;
        duel.Fight();
        std::vector<std::string> lines = duel.Report().lines;
        lines.erase(lines.begin());
        if (leadership == 8) {
            EXPECT_EQ(duel.Report().attackStrike, 28);
            lines.resize(told.size());
            EXPECT_EQ(lines, told);
        } else {
            EXPECT_EQ(duel.Report().attackStrike, 20);
            EXPECT_EQ(lines.front(),
                      "Combined Tactical Leadership Insufficient, No Tactical Advantage  +0");
        }
        EXPECT_EQ(battle.combinedLeadership, 0);
        EXPECT_EQ(battle.tacticalAdvantage, 0);
    }
}

TEST(Report, QuickLeavesNoMarksAndKeepsActionPoints) {
    Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
    duel.Fight();
    EXPECT_EQ(duel.A().actionPoints, 1);
    EXPECT_TRUE(duel.witness.dialogs.empty());
    for (const PlayCell& cell : duel.game.grid.PlayCells()) {
        EXPECT_EQ(cell.moveMark + cell.selected + cell.highlight, 0);
    }
}

TEST(Sounds, FollowTheArm) {
    struct SoundCase {
        UnitType type;
        UnitActivity activity;
        Heard anyOf;
        std::size_t played;
    };
    const Heard salvoes = {"sound Artillery_Fire1", "sound Artillery_Fire2",
                           "sound Artillery_Fire3", "sound Artillery_Fire4",
                           "sound Artillery_Fire5", "sound ArtFire"};
    const SoundCase cases[] = {
        {UnitType::LineInfantry, UnitActivity::BayonetCharge, {"sound InfMelee2"}, 1},
        {UnitType::GuardInfantry, UnitActivity::None, {"sound Musket_Fire1"}, 1},
        {UnitType::LightInfantry, UnitActivity::None, {"sound Skirmish_Musket_Fire2"}, 1},
        {UnitType::DragoonsDismounted, UnitActivity::None, {"sound Musket_Fire2"}, 1},
        {UnitType::Lancers, UnitActivity::Charging, {"sound CavCharge"}, 1},
        {UnitType::Lancers,
         UnitActivity::None,
         {"sound 12A_Cavalry_fighting", "sound 12B_Cavalry_fighting", "sound 12C_Cavalry_fighting"},
         1},
        {UnitType::FieldArtillery, UnitActivity::None, salvoes, 2},
    };
    for (const SoundCase& sound : cases) {
        Duel duel(sound.type, UnitType::LineInfantry);
        duel.KeepNerves();
        duel.game.settings.battleSounds = 1;
        duel.A().activity = sound.activity;
        duel.Fight();
        const Heard heard = duel.witness.Heard();
        ASSERT_EQ(heard.size(), sound.played) << static_cast<int>(sound.type);
        for (const std::string& one : heard) {
            EXPECT_NE(std::find(sound.anyOf.begin(), sound.anyOf.end(), one), sound.anyOf.end())
                << one;
        }
    }
}

TEST(PickTarget, ByTheArmOfTheAttacker) {
    using enum UnitType;
    struct PickCase {
        const char* name;
        UnitType attacker;
        std::array<UnitType, 3> enemies;  // None: the slot is empty
        int squareSlot;                   // 1 to 3; 0 nobody
        int picked;                       // slot
    };
    const PickCase cases[] = {
        {"the only one", FieldArtillery, {Leader, None, None}, 0, 1},
        {"guns: horse first", FieldArtillery, {LineInfantry, HorseArtillery, Lancers}, 0, 3},
        {"guns: then foot", HorseArtillery, {FieldArtillery, Leader, Engineers}, 0, 3},
        {"guns: then guns", FieldArtillery, {Leader, FieldArtillery, None}, 0, 2},
        {"horse: what is not foot", Lancers, {LineInfantry, Leader, LightCavalry}, 0, 2},
        {"horse: foot out of square", Lancers, {LineInfantry, GuardInfantry, None}, 1, 2},
        {"horse: all in square, the front", HeavyCavalry, {LineInfantry, None, None}, 1, 1},
        {"foot: foot first", LineInfantry, {FieldArtillery, Lancers, LineInfantry}, 0, 3},
        {"foot: a leader passes for foot", LineInfantry, {Lancers, Leader, FieldArtillery}, 0, 2},
        {"foot: then guns", LineInfantry, {Lancers, HorseArtillery, None}, 0, 2},
        {"foot: only horse, the front", LineInfantry, {Lancers, LightCavalry, None}, 0, 1},
        {"guard horse: foot in front", GuardCavalry, {LineInfantry, FieldArtillery, None}, 0, 1},
        {"guard horse: square in front, guns",
         GuardCavalry,
         {LineInfantry, Lancers, FieldArtillery},
         1,
         3},
        {"guard horse: foot behind horse",
         GuardCavalry,
         {Lancers, FieldArtillery, LineInfantry},
         0,
         3},
        {"rockets: guns", RocketArtillery, {Lancers, FieldArtillery, None}, 0, 2},
    };
    for (const PickCase& pick : cases) {
        AttackField field;
        const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(pick.attacker));
        for (int slot = 1; slot <= 3; ++slot) {
            const UnitType type = pick.enemies[static_cast<std::size_t>(slot - 1)];
            if (type == None) break;
            Unit enemy = Fighter(type);
            if (slot == pick.squareSlot) enemy.formation = Formation::Square;
            field.Add(kBritish, field.kMiddle, slot, enemy);
        }
        field.Prepare(attacker);
        PickTarget(field.game);
        EXPECT_EQ(field.game.battle.targetUnit, pick.picked) << pick.name;
        EXPECT_EQ(field.game.battle.targetArmy, kBritish) << pick.name;
    }
}

TEST(EnemySlots, EndAtTheFirstWithoutAFighter) {
    AttackField field;
    const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
    field.Add(kBritish, field.kMiddle, 1, Fighter(UnitType::LineInfantry));
    field.Add(kBritish, field.kMiddle, 2, Fighter(UnitType::SupplyWagon));
    field.Add(kBritish, field.kMiddle, 3, Fighter(UnitType::LineInfantry));
    field.Prepare(attacker);
    EXPECT_EQ(field.game.battle.enemySlotUnit, (std::array<int, 3>{1, 0, 0}));
    EXPECT_EQ(field.game.battle.enemySlotsFilled, 1);
}

// The computer's own choice stands while its passes run, and not after.
TEST(EnemySlots, AreNotAskedWhileTheComputerHasChosen) {
    for (int mark : {1, 9}) {
        Duel duel(UnitType::LineInfantry, UnitType::LineInfantry);
        const UnitId second = duel.Add(kBritish, duel.kMiddle, 2, Fighter(UnitType::LineInfantry));
        duel.game.settings.computerSide = 1;
        duel.game.state.opponentMark = mark;
        duel.Prepare(duel.attackerId);
        duel.game.battle.targetUnit = second.index;
        ResolveAttack(duel.game);
        EXPECT_EQ(duel.Report().target, mark == 9 ? duel.targetId : second);
    }
}

}  // namespace
}  // namespace varnstride
