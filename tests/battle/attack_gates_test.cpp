// Who attacks whom, and what keeps an attack from being made.
#include <gtest/gtest.h>

#include "battle/attack_field.h"

namespace varnstride {
namespace {

using namespace words;

struct GateCase {
    const char* name;
    Soldier attacker;
    Soldier target;
    const char* courier = "";  // why not; empty when the attack is made
    int visibility = 20;
    int villages = 0;
    int eventCard = 0;
    int opponentMark = 0;
};

// The reason why an attack was not made when there is none to tell.
constexpr const char* kSilence = "silence";

const GateCase kGates[] = {
    {"foot on foot", {}, {GuardInfantry}},
    {"foot on a leader", {}, {Leader}},
    {"foot on guns", {LightInfantry}, {HorseArtillery}},
    {"foot on horse in the open", {}, {HeavyCavalry}, "courier 2"},
    {"foot on horse among houses", {}, {HeavyCavalry}, "", 20, 3},
    {"two houses are not enough", {}, {Lancers}, "courier 2", 20, 2},
    {"foot on a quarter of its strength", {}, {.type = Lancers, .strength = 1}},
    {"foot on half its strength", {}, {.type = Lancers, .strength = 2}, "courier 2"},
    {"foot on mortars", {}, {MortarArtillery}, kSilence},
    {"foot on rockets", {}, {RocketArtillery}, kSilence},
    {"guns on horse", {FieldArtillery}, {Lancers}},
    {"cossacks on their equals", {CossackCavalry}, {}, "courier 3"},
    {"cossacks on a quarter", {CossackCavalry}, {.strength = 1}},
    {"march column", {.formation = MarchColumn}, {}, "courier 1"},
    {"march column before horse: the later", {.formation = MarchColumn}, {Lancers}, "courier 2"},
    {"silence under a weather card", {}, {Lancers}, kSilence, 20, 0, 205},
    {"damp powder", {}, {}, "courier 91", 7},
    {"damp powder of guns", {FieldArtillery}, {}, "courier 91", 6},
    {"damp powder does not stop horse", {LightCavalry}, {}, "", 6},
    {"nor the computer's own passes", {}, {}, "", 6, 0, 0, 9},
    {"darker still they fire", {}, {}, "", 5},
};

TEST(Gates, LetThroughWhomTheyShould) {
    for (const GateCase& gate : kGates) {
        Duel duel(gate.attacker, gate.target, VillageIn(gate.villages));
        duel.SteadyTheAttacker();
        duel.T().quality = Elite;  // who passes his test
        duel.game.header.visibility = gate.visibility;
        duel.game.state.eventCard = gate.eventCard;
        duel.game.state.opponentMark = gate.opponentMark;
        duel.Fight();
        const std::string courier = gate.courier;
        EXPECT_EQ(duel.HasFought(), courier.empty()) << gate.name;
        EXPECT_EQ(duel.A().canMove, courier.empty() ? 0 : 1) << gate.name;
        const bool silent = courier.empty() || courier == kSilence;
        EXPECT_EQ(duel.witness.Heard(), silent ? Heard{} : Heard{courier}) << gate.name;
    }
}

TEST(Gates, TellWhyThereIsNoTarget) {
    const std::pair<UnitType, const char*> cases[] = {
        {FieldArtillery, "courier 4"}, {HeavyCavalry, "courier 5"}, {LineInfantry, "courier 206"}};
    for (const auto& [type, courier] : cases) {
        AttackField field;
        field.Attack(field.Add(kFrench, field.kMiddle, 1, Fighter(type)));
        EXPECT_FALSE(field.HasFought());
        EXPECT_EQ(field.witness.Heard(), Heard{courier});
    }
}

TEST(Gates, StopABarrageInPoorSight) {
    for (int visibility : {9, 10}) {
        AttackField field;
        field.game.header.visibility = visibility;
        const UnitId guns = field.Add(kFrench, field.kWest, 1, Fighter(FieldArtillery));
        field.Bombard(guns, field.Add(kBritish, field.kMiddle, 1, Fighter(LineInfantry)));
        EXPECT_EQ(field.HasFought(), visibility == 10);
        EXPECT_EQ(field.witness.Heard(), visibility == 10 ? Heard{} : Heard{"courier 90"});
    }
}

TEST(Attacker, MustBeFreshSteadyAndArmed) {
    struct LeadCase {
        const char* name;
        bool leads;
        Soldier soldier;
        int canMove = 1;
    };
    const LeadCase cases[] = {
        {"fresh", true, {}},
        {"has fought", false, {}, 0},
        {"no ammunition", false, {.ammunition = 0}},
        {"bayonets need none", true, {.activity = BayonetCharge, .ammunition = 0}},
        {"horse needs none", true, {.type = LightCavalry, .ammunition = 0}},
        {"leader", false, {Leader}},
        {"on hold", false, {.activity = UnitActivity::Hold}},
        {"shaken", false, {.status = Shaken}},
        {"unsteady", true, {.status = Unsteady}},
    };
    for (const LeadCase& lead : cases) {
        Duel duel(lead.soldier, {});
        duel.SteadyTheAttacker();
        duel.game.options.tacticalPlayOn = 1;
        duel.A().canMove = lead.canMove;
        duel.Fight();
        EXPECT_EQ(duel.HasFought(), lead.leads) << lead.name;
        EXPECT_EQ(duel.witness.Heard(), lead.leads ? Heard{} : Heard{"courier 7"}) << lead.name;
        EXPECT_EQ(duel.game.state.currentUnit, lead.leads ? duel.attackerId.index : 0) << lead.name;
        EXPECT_EQ(duel.game.battle.targetUnit, 0) << lead.name;
    }
}

TEST(PickTarget, ByTheArmOfTheAttacker) {
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
        {"guard horse: no squares", GuardCavalry, {LineInfantry, Lancers, FieldArtillery}, 1, 3},
        {"guard horse: foot far", GuardCavalry, {Lancers, FieldArtillery, LineInfantry}, 0, 3},
        {"rockets: guns", RocketArtillery, {Lancers, FieldArtillery, None}, 0, 2},
    };
    for (const PickCase& pick : cases) {
        AttackField field;
        const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(pick.attacker));
        for (int slot = 1; slot <= 3; ++slot) {
            const UnitType type = pick.enemies[static_cast<std::size_t>(slot - 1)];
            if (type == None) break;
            const Formation formation = slot == pick.squareSlot ? Square : Line;
            field.Add(kBritish, field.kMiddle, slot, Soldier{type, formation}.Made());
        }
        field.Prepare(attacker);
        PickTarget(field.game);
        EXPECT_EQ(field.game.battle.targetUnit, pick.picked) << pick.name;
        EXPECT_EQ(field.game.battle.targetArmy, kBritish) << pick.name;
    }
}

TEST(EnemySlots, EndAtTheFirstWithoutAFighter) {
    AttackField field;
    const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(LineInfantry));
    field.Add(kBritish, field.kMiddle, 1, Fighter(LineInfantry));
    field.Add(kBritish, field.kMiddle, 2, Fighter(SupplyWagon));
    field.Add(kBritish, field.kMiddle, 3, Fighter(LineInfantry));
    field.Prepare(attacker);
    EXPECT_EQ(field.game.battle.enemySlotUnit, (std::array<int, 3>{1, 0, 0}));
    EXPECT_EQ(field.game.battle.enemySlotsFilled, 1);
}

// The computer's own choice stands while its passes run, and not after.
TEST(EnemySlots, AreNotAskedWhileTheComputerHasChosen) {
    for (int mark : {1, 9}) {
        Duel duel({}, {});
        const UnitId second = duel.Add(kBritish, duel.kMiddle, 2, Fighter(LineInfantry));
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
