// One attack step by step: the hits, the losses, what is spent, who runs and who surrenders.
#include <gtest/gtest.h>

#include "battle/attack_field.h"
#include "resources/dialog_ids.h"
#include "support/prepared_dice.h"

namespace varnstride {
namespace {

using namespace words;

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
        Duel duel({hit.attacker},
                  {.type = hit.target, .strength = hit.targetStrength, .quality = Elite});
        duel.SteadyTheAttacker();
        duel.game.state.moveCost = 3;  // from so far that nobody forms a square
        // Rockets and mortars support nobody, so they get a friend.
        duel.Add(kFrench, duel.kWest, 1, Fighter(LightInfantry));
        duel.Fight();
        SCOPED_TRACE(testing::Message()
                     << static_cast<int>(hit.attacker) << " on " << static_cast<int>(hit.target));
        ASSERT_TRUE(duel.HasFought());
        EXPECT_EQ(duel.Report().attackStrike, hit.attackStrike);
        EXPECT_EQ(duel.Report().defenderHit, hit.defenderHit);
        EXPECT_EQ(duel.Report().defenceStrike, hit.defenceStrike);
        EXPECT_EQ(duel.Report().attackerHit, hit.attackerHit);
        EXPECT_EQ(duel.A().morale, 24 - hit.attackerHit - duel.Report().attackerLoss);
    }
}

TEST(Hits, AreThinnedBySize) {
    // 20 / 3 = 6 on the target; 15 / 2 = 7 on the attacker.
    const int onTarget[] = {6, 4, 3, 3, 2, 2};
    const int onAttacker[] = {7, 7, 4, 3, 3, 2};
    for (int strength = 1; strength <= 6; ++strength) {
        Duel blow({}, {.strength = strength});
        blow.Fight();
        EXPECT_EQ(blow.Report().defenderHit, onTarget[strength - 1]) << strength;
        Duel answer({.strength = strength}, {});
        answer.Fight();
        EXPECT_EQ(answer.Report().attackerHit, onAttacker[strength - 1]) << strength;
    }
}

TEST(Hits, AreSomethingAtLeast) {
    // A weak blow: 4 x 4 x 0.25 = 4, / 3 = 1, halved 0. A weak answer: 3 / 2 = 1, halved 0.
    for (int villages : {1, 2}) {
        Duel duel({.formation = Square, .quality = Militia}, {.formation = AttackColumn},
                  VillageIn(villages == 1 ? 0 : 2));
        duel.Fight();
        EXPECT_EQ(duel.Report().defenderHit, villages - 1);
        EXPECT_EQ(duel.Report().attackerHit, villages);
    }
    // Guns: 3 pounders of 1 on a column of 6, 4 + 2 = 6, / 4 = 1, a third of it 0.
    const std::pair<UnitType, int> cases[] = {{LineInfantry, 1},
                                              {LightInfantry, 0},
                                              {LightDragoonsDismounted, 0},
                                              {DragoonsDismounted, 0}};
    for (const auto& [type, hit] : cases) {
        Duel duel({.type = FieldArtillery, .strength = 1, .weapon = ThreePounder},
                  {.type = type, .formation = AttackColumn, .strength = 6});
        duel.Fight();
        EXPECT_EQ(duel.Report().defenderHit, hit) << static_cast<int>(type);
    }
}

// The target throws its dice of eight, then the attacker his of six, one less than the hit; each 1
// costs a strength point, two at most.
TEST(Losses, AreThrownForHitByHit) {
    struct LossCase {
        const char* name;
        Soldier attacker;
        Soldier target;
        std::vector<DieThrow> dice;
        int targetLoss;
        int attackerLoss;
    };
    const LossCase cases[] = {
        // hits of 20 / 3 / 2 = 3 and 15 / 2 / 2 = 3: two dice each
        {"none", {}, {}, {{8, 0}, {8, 2}, {6, 0}, {6, 5}}, 0, 0},
        {"one each", {}, {}, {{8, 1}, {8, 2}, {6, 0}, {6, 1}}, 1, 1},
        {"two each", {}, {}, {{8, 1}, {8, 1}, {6, 1}, {6, 1}}, 2, 2},
        // 20 / 3 / 1.5 = 4; 10 / 2 / 2 = 2
        {"no more than two", {}, {.strength = 2}, {{8, 1}, {8, 1}, {8, 1}, {6, 0}}, 2, 0},
        // (5 - 1) x 8 - 2 = 30 / 3 / 2 = 5; 15 - 1 = 14 / 2 / 2 = 3
        {"skirmishers lose one to foot",
         {.formation = AttackColumn},
         {LightInfantry, OpenOrder},
         {{8, 1}, {8, 1}, {8, 0}, {8, 0}, {6, 0}, {6, 0}},
         1,
         0},
        // the test of horse; (7 + 2) x 3 + 5 = 32 / 5 / 2 = 3; 15 / 4 / 2 = 1
        {"and two to horse",
         {LightCavalry},
         {LightInfantry, OpenOrder},
         {{16, 0}, {8, 1}, {8, 1}},
         2,
         0},
        // 25 / 3 / 2 = 4
        {"skirmishers attacking lose one",
         {.formation = OpenOrder},
         {},
         {{8, 0}, {8, 0}, {8, 0}, {6, 1}, {6, 1}},
         0,
         1},
    };
    for (const LossCase& loss : cases) {
        Duel duel(loss.attacker, loss.target);
        duel.SteadyTheAttacker();
        const std::uint32_t thrown = PrepareDice(duel.game, loss.dice);
        duel.Fight();
        EXPECT_EQ(duel.game.generator.State(), thrown) << loss.name;
        EXPECT_EQ(duel.Report().defenderLoss, loss.targetLoss) << loss.name;
        EXPECT_EQ(duel.Report().attackerLoss, loss.attackerLoss) << loss.name;
        EXPECT_EQ(duel.A().strength, loss.attacker.strength - loss.attackerLoss) << loss.name;
        EXPECT_EQ(duel.A().disrupted, loss.attackerLoss > 0 ? 1 : 0) << loss.name;
        EXPECT_EQ(duel.T().disrupted, loss.targetLoss > 1 ? 1 : 0) << loss.name;
        EXPECT_EQ(duel.game.loss.alliedLossSP, loss.targetLoss) << loss.name;
        EXPECT_EQ(duel.game.loss.frenchLossSP, loss.attackerLoss) << loss.name;
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
        {"volleys", LineInfantry, false, 8, 6},
        {"the last volleys", LineInfantry, false, 2, 0},
        {"one load", LineInfantry, false, 1, 0},
        {"bayonets", LineInfantry, true, 8, 8},
        {"bayonets with one load", LineInfantry, true, 1, 0},
        {"bayonets with none", LineInfantry, true, 0, 0},
        {"canister", FieldArtillery, false, 2, 2},
        {"the last canister", FieldArtillery, false, 1, 0},
        {"horse", LightCavalry, false, 1, 1},
    };
    for (const AmmunitionCase& load : cases) {
        Duel duel({.type = load.type, .ammunition = load.before}, {});
        if (load.bayonets) duel.A().activity = BayonetCharge;
        duel.SteadyTheAttacker();
        duel.Fight();
        EXPECT_EQ(duel.A().ammunition, load.after) << load.name;
        EXPECT_EQ(duel.T().ammunition, load.type == FieldArtillery ? 8 : 7) << load.name;
    }
    for (const auto& [before, after] : {std::pair{8, 6}, {3, 1}, {2, 0}, {1, 0}}) {
        AttackField field;
        const UnitId guns = field.Add(kFrench, field.kWest, 1,
                                      Soldier{.type = HorseArtillery, .ammunition = before}.Made());
        field.Bombard(guns, field.Add(kBritish, field.kMiddle, 1, Fighter(LineInfantry)));
        EXPECT_EQ(field.game.At(guns).ammunition, after) << before;
    }
}

// Behind the die of the horse's own nerve: by how far it rides, its order, and who receives it.
TEST(Square, IsFormedByHowFarHorseRides) {
    struct SquareCase {
        int moveCost;
        Quality quality;
        Formation horse;
        std::vector<DieThrow> dice;
        bool forms;
        int villages = 0;
    };
    const SquareCase cases[] = {
        {2, Militia, OpenOrder, {}, true},       {2, Conscript, Line, {}, false},
        {2, Militia, MarchColumn, {}, false},    {2, Militia, Line, {}, true, 1},
        {2, Militia, Line, {}, false, 2},        {1, Veteran, MixedOrder, {}, true},
        {1, Veteran, Square, {}, false},         {1, Experienced, Line, {{3, 1}}, true},
        {1, Experienced, Line, {{3, 2}}, false}, {1, Militia, Line, {}, false},
        {0, Elite, Line, {{2, 1}}, true},        {0, Veteran, AttackColumn, {{2, 0}}, false},
        {0, Experienced, Line, {}, false},       {0, Elite, OpenOrder, {}, false},
    };
    for (const SquareCase& square : cases) {
        Duel duel({LightCavalry, square.horse}, {.quality = square.quality},
                  VillageIn(square.villages));
        duel.SteadyTheAttacker();
        duel.game.state.moveCost = square.moveCost;
        std::vector<DieThrow> dice = {{16, 0}};
        dice.insert(dice.end(), square.dice.begin(), square.dice.end());
        PrepareDice(duel.game, dice);
        duel.Fight();
        EXPECT_EQ(duel.T().formation == Square, square.forms)
            << square.moveCost << ' ' << static_cast<int>(square.quality);
    }
}

TEST(Target, EliminatedLeavesItsSlotToTheNext) {
    Duel duel({}, {.strength = 1, .maxMorale = 5});
    const UnitId second = duel.Add(kBritish, duel.kMiddle, 2, Fighter(LineInfantry));
    const Cell front = duel.T().Place();
    PrepareDice(duel.game, {{8, 1}, {8, 1}});  // of five
    duel.Fight();
    EXPECT_EQ(duel.Report().defenderLoss, 1);
    EXPECT_EQ(duel.T().strength, 0);
    EXPECT_EQ(duel.T().status, Destroyed);
    EXPECT_EQ(duel.T().Place(), kNoCell);
    EXPECT_EQ(duel.game.At(second).Place(), front);
    EXPECT_EQ(duel.game.grid.At(front).occupant, kBritish + 1);
    EXPECT_EQ(duel.game.loss.alliedLossSP, 1);
    // line infantry without a weapon: 4 points, times the morale at the start
    EXPECT_EQ(duel.game.loss.alliedLossPoints, 4 * 5);
}

TEST(Rout, SpreadsOverTheAreaOnce) {
    Duel duel({}, {.morale = 12});  // a hit of 3 leaves 9 of 24, 37 percent
    const UnitId second = duel.Add(kBritish, duel.kMiddle, 2, Fighter(LineInfantry));
    const UnitId elsewhere = duel.Add(kBritish, duel.kEast, 1, Fighter(LineInfantry));
    for (int attack = 0; attack < 2; ++attack) {
        duel.A().canMove = 1;
        duel.Prepare(duel.attackerId);
        ResolveAttackOn(duel.game, duel.targetId);
        EXPECT_EQ(duel.T().status, Routed);
        EXPECT_EQ(duel.game.At(second).morale, 22);
        EXPECT_EQ(duel.game.At(elsewhere).morale, 24);
    }
}

constexpr Soldier kRouted{.formation = NoFormation, .status = Routed, .morale = 8};

// The victor makes for the east, and there the beaten run, all of them.
TEST(Rout, RunsTheWayOfTheVictor) {
    AttackField field;
    const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(LineInfantry));
    const UnitId steady = field.Add(kBritish, field.kMiddle, 1, Fighter(LineInfantry));
    const UnitId first = field.Add(kBritish, field.kMiddle, 2, kRouted.Made());
    const UnitId other = field.Add(kBritish, field.kMiddle, 3, kRouted.Made());
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
    Duel duel({}, kRouted);
    duel.Add(kFrench, duel.kEast, 1, Fighter(LineInfantry));
    duel.Fight();
    const Cell slot = duel.SlotCell(Side::Allied, duel.kMiddle, 1);
    EXPECT_EQ(duel.T().Place(), slot);
    EXPECT_TRUE(IsHeld(duel.game, slot));
    EXPECT_EQ(duel.witness.Heard(), Heard{"courier 211"});
}

TEST(Rout, DoesNotFollowABarrage) {
    AttackField field;
    const UnitId target = field.Add(kBritish, field.kMiddle, 1, kRouted.Made());
    field.Bombard(field.Add(kFrench, field.kWest, 1, Fighter(FieldArtillery)), target);
    ASSERT_TRUE(field.HasFought());
    EXPECT_EQ(field.game.At(target).Place(), field.SlotCell(Side::Allied, field.kMiddle, 1));
}

TEST(Surrender, NeedsFootOrHorseToTakeIt) {
    for (const UnitType attacker : {LineInfantry, LightCavalry, FieldArtillery}) {
        Soldier beaten = kRouted;
        beaten.morale = 1;
        beaten.strength = 5;  // above what one attack can cost
        Duel duel({attacker}, beaten);
        duel.Add(kFrench, duel.kEast, 1, Fighter(LineInfantry));  // bars the way
        duel.Fight();
        const bool taken = attacker != FieldArtillery;
        EXPECT_EQ(duel.T().morale, 0);
        EXPECT_EQ(duel.T().strength == 0, taken);
        EXPECT_EQ(duel.T().Place() == kNoCell, taken);
        ASSERT_EQ(duel.witness.dialogs.size(), taken ? 1U : 0U);
        if (!taken) continue;
        const Dialog& notice = duel.witness.dialogs.front();
        EXPECT_EQ(notice.templateId, kSurrenderedUnitReport);
        EXPECT_EQ(notice.At(1402).text, "British Army");
        EXPECT_EQ(notice.At(1404).text, std::to_string(5 - duel.Report().defenderLoss));
        EXPECT_EQ(duel.game.loss.alliedLossSP, 5);
        EXPECT_EQ(duel.game.loss.alliedLossPoints, 5 * 4 * 24);
        EXPECT_FALSE(IsHeld(duel.game, duel.SlotCell(Side::Allied, duel.kMiddle, 1)));
    }
}

// Militia at 45 percent, one against three, before heavy horse and a column scores at most
// 6 + 10 - 2 - 2 - 2 - 2 = 8 and breaks.
TEST(Nerve, OfAShakenTargetBreaksBeforeItAnswers) {
    Duel duel({.formation = AttackColumn}, {.status = Shaken, .quality = Militia, .morale = 11});
    duel.Add(kFrench, duel.kMiddle, 2, Fighter(HeavyCavalry));
    duel.Add(kFrench, duel.kMiddle, 3, Fighter(LineInfantry));
    duel.Fight();
    EXPECT_EQ(duel.Report().attackerHit, 0);
    EXPECT_EQ(duel.Report().defenceStrike, 0);
    EXPECT_EQ(duel.T().status, Routed);
    EXPECT_EQ(duel.witness.Heard().front(), "courier 79");
    EXPECT_EQ(duel.game.state.currentArmy, kFrench);
    EXPECT_EQ(duel.game.battle.defenderTested, 0);
}

// At or below 40 percent: no die, 10 - 2 - 1 - 2 = 5.
TEST(Nerve, OfHorseFailsBeforeContact) {
    Duel duel({.type = LightCavalry, .status = Unsteady, .quality = Conscript, .morale = 9}, {});
    duel.Add(kBritish, duel.kMiddle, 2, Fighter(HeavyCavalry));
    duel.Add(kBritish, duel.kMiddle, 3, Fighter(LineInfantry));
    duel.Fight();
    EXPECT_FALSE(duel.HasFought());
    EXPECT_EQ(duel.witness.Heard(), Heard{"courier 278"});
    EXPECT_EQ(duel.A().status, Routed);
    EXPECT_EQ(duel.A().morale, 8);  // 24 x 0.35
}

TEST(Smoke, RisesByTheWindAndCoversTheAttackersArea) {
    struct SmokeCase {
        int windSpeed;
        DieThrow die;
        bool rises;
    };
    const SmokeCase cases[] = {{5, {5, 1}, true},    {5, {5, 0}, false},  {6, {10, 1}, true},
                               {10, {10, 9}, false}, {11, {20, 1}, true}, {30, {20, 6}, false}};
    for (const SmokeCase& smoke : cases) {
        Duel duel({}, {});
        duel.game.options.smokeOn = 1;
        duel.game.time.windSpeed = smoke.windSpeed;
        // hits of 3 and 3; of 16 / 3 / 2 = 2 and 14 / 2 / 2 = 3 in the smoke
        std::vector<DieThrow> dice = {smoke.die, {8, 0}, {6, 0}, {6, 0}};
        if (!smoke.rises) dice.push_back({6, 0}), dice[2] = {8, 0};
        const std::uint32_t thrown = PrepareDice(duel.game, dice);
        duel.Fight();
        EXPECT_EQ(duel.game.generator.State(), thrown) << smoke.windSpeed;
        const int inArea = smoke.rises ? kSmoke : kNoRoad;
        EXPECT_EQ(duel.game.grid.At({8, 0}).roadTile, inArea) << smoke.windSpeed;
        EXPECT_EQ(duel.game.grid.At({15, 5}).roadTile, inArea) << smoke.windSpeed;
        EXPECT_EQ(duel.game.grid.At({7, 0}).roadTile, kNoRoad);
        EXPECT_EQ(duel.game.grid.At({16, 5}).roadTile, kNoRoad);
    }
}

TEST(Report, InTheBoxTellsTheCauses) {
    Duel duel({.type = LightCavalry, .quality = Veteran}, {LightInfantry, OpenOrder}, VillageIn(1));
    duel.SteadyTheAttacker();
    duel.game.settings.quickResults = 0;
    duel.game.state.moveCost = 3;
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
    const std::vector<std::string> badlyLed = {
        "Combined Tactical Leadership Insufficient, No Tactical Advantage  +0"};
    for (int leadership : {8, 7}) {
        Duel duel({}, {});
        duel.game.options.tacticalPlayOn = 1;
        BattleState& battle = duel.game.battle;
        battle.attackingSlots = 2;
        battle.chosenTactic = 4;
        battle.tacticalResponse = 3;
        battle.tacticalAdvantage = 2;
        battle.requiredLeadership = 8;
        battle.combinedLeadership = leadership;
        duel.Fight();
        const std::vector<std::string>& expected = leadership == 8 ? told : badlyLed;
        std::vector<std::string> lines = duel.Report().lines;
        lines.erase(lines.begin());
        lines.resize(expected.size());
        EXPECT_EQ(lines, expected);
        EXPECT_EQ(duel.Report().attackStrike, leadership == 8 ? 28 : 20);
        EXPECT_EQ(battle.combinedLeadership, 0);
        EXPECT_EQ(battle.tacticalAdvantage, 0);
    }
}

TEST(Report, QuickLeavesNoMarksAndKeepsActionPoints) {
    Duel duel({}, {});
    duel.Fight();
    EXPECT_EQ(duel.A().actionPoints, 1);
    EXPECT_TRUE(duel.witness.dialogs.empty());
    for (const PlayCell& cell : duel.game.grid.PlayCells())
        EXPECT_EQ(cell.moveMark + cell.selected + cell.highlight, 0);
}

TEST(Sounds, FollowTheArm) {
    struct SoundCase {
        UnitType type;
        UnitActivity activity;
        std::string anyOf;
        std::size_t played;
    };
    constexpr UnitActivity kNone = UnitActivity::None;
    const SoundCase cases[] = {
        {LineInfantry, BayonetCharge, "InfMelee2", 1},
        {GuardInfantry, kNone, "Musket_Fire1", 1},
        {LightInfantry, kNone, "Skirmish_Musket_Fire2", 1},
        {DragoonsDismounted, kNone, "Musket_Fire2", 1},
        {Lancers, Charging, "CavCharge", 1},
        {Lancers, kNone, "12A_Cavalry_fighting 12B_Cavalry_fighting 12C_Cavalry_fighting", 1},
        {FieldArtillery, kNone,
         "Artillery_Fire1 Artillery_Fire2 Artillery_Fire3 Artillery_Fire4 Artillery_Fire5 ArtFire",
         2},
    };
    for (const SoundCase& sound : cases) {
        Duel duel({.type = sound.type, .activity = sound.activity}, {});
        duel.SteadyTheAttacker();
        duel.game.settings.battleSounds = 1;
        duel.Fight();
        const Heard heard = duel.witness.Heard();
        ASSERT_EQ(heard.size(), sound.played) << static_cast<int>(sound.type);
        for (const std::string& one : heard) {
            const std::string name = " " + one.substr(one.find(' ') + 1) + " ";
            EXPECT_NE((" " + sound.anyOf + " ").find(name), std::string::npos) << one;
        }
    }
}

}  // namespace
}  // namespace varnstride
