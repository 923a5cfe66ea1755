// The test of nerve: what is thrown, what counts, and the verdict. Figures by hand.
#include "battle/morale.h"

#include <gtest/gtest.h>

#include "battle/attack_field.h"
#include "support/prepared_dice.h"

namespace varnstride {
namespace {

using namespace words;

// What a test is taken in besides the unit tested and the one that faces it.
struct Scene {
    int friends = 0;
    int enemies = 0;
    int terrain = 0;
    int defenderTested = 0;
};

constexpr Scene kDefence{.defenderTested = 1};

// The first unit of the duel is tested, the other is the opponent.
struct Trial : Duel {
    Trial(const Soldier& tested, const Soldier& opponent, const Scene& scene)
        : Duel(tested, opponent) {
        for (int slot = 2; slot < 2 + scene.friends; ++slot)
            Add(kFrench, kMiddle, slot, Fighter(LineInfantry));
        for (int slot = 2; slot < 2 + scene.enemies; ++slot)
            Add(kBritish, kMiddle, slot, Fighter(LineInfantry));
        Face();
        game.battle.terrainDefence = scene.terrain;
        game.battle.defenderTested = scene.defenderTested;
        game.battle.moraleHeld = 1;
    }

    int Score() {
        MoraleTest(game);
        return game.battle.testScore;
    }
};

// A unit of status Routed has nothing added for it: 10 and the die.
TEST(MoraleTest, ThrowsByQualityAndMoraleLeft) {
    struct DieCase {
        Quality quality;
        int morale;  // of 20
        DieThrow die;
        int score;
    };
    const DieCase cases[] = {
        {Elite, 9, {4, 0}, 12},          {Veteran, 12, {4, 3}, 15},    {Veteran, 13, {7, 0}, 14},
        {Elite, 16, {7, 6}, 20},         {Elite, 17, {10, 0}, 16},     {Veteran, 20, {10, 9}, 25},
        {Experienced, 9, {6, 0}, 11},    {Conscript, 12, {6, 5}, 16},  {Militia, 13, {11, 0}, 12},
        {Experienced, 16, {11, 10}, 22}, {Conscript, 17, {16, 0}, 13}, {Militia, 20, {16, 15}, 28},
    };
    for (const DieCase& each : cases) {
        Trial trial(
            {.status = Routed, .quality = each.quality, .morale = each.morale, .maxMorale = 20}, {},
            {});
        const std::uint32_t thrown = PrepareDice(trial.game, {each.die});
        EXPECT_EQ(trial.Score(), each.score) << each.die.sides;
        EXPECT_EQ(trial.game.generator.State(), thrown) << each.die.sides;
    }
}

// Ordered, with too little morale left to throw: 10 + 1.
TEST(MoraleTest, CountsTheCircumstances) {
    struct ScoreCase {
        const char* name;
        int score;
        Soldier tested = {};
        Soldier opponent = {};
        Scene scene = {};
    };
    const ScoreCase cases[] = {
        {"one against one", 11},
        {"two against one", 12, {}, {}, {.friends = 1}},
        {"three against one", 13, {}, {}, {.friends = 2}},
        {"one against two", 10, {}, {}, {.enemies = 1}},
        {"one against three", 9, {}, {}, {.enemies = 2}},
        {"unsteady", 9, {.status = Unsteady}},
        {"shaken", 8, {.status = Shaken}},
        {"routed", 10, {.status = Routed}},
        {"the enemy runs", 12, {}, {.status = Routed}},
        {"attack in the open", 11, {}, {}, {.terrain = 1}},
        {"attack on a village", 10, {}, {}, {.terrain = 2}},
        {"attack on a forest", 10, {}, {}, {.terrain = 4}},
        {"defence of a field", 11, {}, {}, {.terrain = 1, .defenderTested = 1}},
        {"defence of a village", 12, {}, {}, {.terrain = 2, .defenderTested = 1}},
        {"defence of woods", 13, {}, {}, {.terrain = 3, .defenderTested = 1}},
        {"defence against a column", 9, {}, {.formation = AttackColumn}, kDefence},
        {"attack on a column", 11, {}, {.formation = AttackColumn}},
        {"before heavy horse: -2 - 2", 7, {}, {HeavyCavalry}},
        {"before light horse", 9, {}, {LightCavalry}},
        {"before cossacks", 9, {}, {CossackCavalry}},
        {"before horse of the guard", 11, {}, {GuardCavalry}},
        {"a square before lancers", 11, {.formation = Square}, {Lancers}},
        {"a leader before lancers", 11, {Leader}, {Lancers}},
        {"field guns", 9, {FieldArtillery}},
        {"horse guns", 11, {HorseArtillery}},
    };
    for (const ScoreCase& each : cases) {
        Trial trial(each.tested, each.opponent, each.scene);
        trial.A().morale = 9;  // of 24
        EXPECT_EQ(trial.Score(), each.score) << each.name;
    }
}

TEST(MoraleTest, IsPassedByTheArmyOfTheCard) {
    for (int army : {kFrench, kPrussian}) {
        Trial trial({.quality = Conscript, .morale = 9}, {}, {.enemies = 2});
        trial.game.state.steadyNerves = 1;
        trial.game.state.steadyNervesArmy = army;
        EXPECT_EQ(trial.Score(), army == kFrench ? 15 : 9);
        EXPECT_EQ(trial.game.battle.moraleHeld, army == kFrench ? 1 : 0);
    }
}

TEST(MoraleTest, HasNoOpponentOutsideAnAttack) {
    Trial trial({.morale = 9}, {LightCavalry}, {});
    trial.game.battle.targetUnit = 0;
    EXPECT_EQ(trial.Score(), 11);
}

// Ordered foot in its defence, one against three, before a column of heavy horse, scores
// 10 + 1 - 2 - 2 - 2 - 2 = 3 and what is thrown; the ground and friends raise it point by point.
TEST(MoraleTest, PassesTheVerdictByQuality) {
    enum Verdict { kHolds, kWavers, kBreaks };
    struct VerdictCase {
        Quality quality;
        int face;  // -1 for a unit too low to throw
        int terrain;
        int friends;
        int score;
        Verdict verdict;
    };
    const VerdictCase cases[] = {
        {Elite, -1, 2, 0, 4, kBreaks},       {Elite, 0, 0, 0, 5, kWavers},
        {Elite, 2, 0, 0, 7, kWavers},        {Elite, 3, 0, 0, 8, kHolds},
        {Veteran, 1, 0, 0, 6, kBreaks},      {Veteran, 2, 0, 0, 7, kWavers},
        {Veteran, 3, 2, 0, 9, kWavers},      {Veteran, 3, 3, 0, 10, kHolds},
        {Experienced, 4, 0, 0, 8, kBreaks},  {Experienced, 5, 0, 0, 9, kWavers},
        {Experienced, 5, 3, 0, 11, kWavers}, {Experienced, 5, 3, 1, 12, kHolds},
        {Militia, 5, 2, 0, 10, kBreaks},     {Militia, 5, 3, 0, 11, kWavers},
        {Conscript, 4, 3, 0, 10, kBreaks},   {Conscript, 5, 3, 2, 13, kWavers},
    };
    for (const VerdictCase& each : cases) {
        const int before = each.face < 0 ? 8 : 12;
        Trial trial({.quality = each.quality, .morale = before, .maxMorale = 20},
                    {HeavyCavalry, AttackColumn}, {each.friends, 2, each.terrain, 1});
        PrepareDice(trial.game, {{each.quality <= Veteran ? 4 : 6, std::max(0, each.face)}});
        SCOPED_TRACE(testing::Message() << "quality " << static_cast<int>(each.quality));
        EXPECT_EQ(trial.Score(), each.score);
        EXPECT_EQ(trial.game.battle.moraleHeld, each.verdict == kHolds ? 1 : 0);
        constexpr UnitStatus kStatus[] = {Ordered, Unsteady, Routed};
        const int morale[] = {before, 14, 7};  // 70 and 35 percent of 20
        EXPECT_EQ(trial.A().status, kStatus[each.verdict]);
        EXPECT_EQ(trial.A().morale, morale[each.verdict]);
        EXPECT_EQ(trial.A().formation == NoFormation, each.verdict == kBreaks);
    }
}

TEST(MoraleTest, CostsByArmAndStatus) {
    struct CostCase {
        const char* name;
        Soldier before;  // of the experienced, who break below 9 and waver up to 11
        int held;
        UnitStatus status;
        int morale;
    };
    const CostCase cases[] = {
        {"11: ordered foot wavers", {.morale = 8}, 0, Unsteady, 16},
        {"9: unsteady foot wavers", {.status = Unsteady, .morale = 8}, 0, Unsteady, 8},
        {"11: horse wavers", {.type = Lancers, .morale = 8}, 0, Unsteady, 16},
        {"11: a leader does not", {.type = Leader, .morale = 8}, 1, Ordered, 8},
        {"11: nor horse guns", {.type = HorseArtillery, .morale = 8}, 1, Ordered, 8},
        {"9: nor field guns", {.type = FieldArtillery, .morale = 8}, 1, Ordered, 8},
        {"8: a leader breaks", {.type = Leader, .status = Shaken, .morale = 9}, 0, Routed, 8},
        {"8: guns break", {.type = HorseArtillery, .status = Shaken, .morale = 9}, 0, Routed, 8},
        {"8: a break may raise morale", {.status = Shaken, .morale = 2}, 0, Routed, 8},
        {"10: the routed have no more to lose", {.status = Routed, .morale = 2}, 0, Routed, 2},
        {"10: and veterans at their end hold",
         {.status = Routed, .quality = Veteran, .morale = 2},
         1,
         Routed,
         2},
    };
    for (const CostCase& cost : cases) {
        Trial trial(cost.before, {}, {});
        MoraleTest(trial.game);
        EXPECT_EQ(trial.game.battle.moraleHeld, cost.held) << cost.name;
        EXPECT_EQ(trial.A().status, cost.status) << cost.name;
        EXPECT_EQ(trial.A().morale, cost.morale) << cost.name;
    }
}

// The widest of the bands: 14 wavers, 15 holds. 10 + 1 for order + 2 by the die + 1 a friend.
TEST(MoraleTest, AsksMuchOfMilitia) {
    for (int friends : {1, 2}) {
        Trial trial({.quality = Militia, .morale = 12}, {}, {.friends = friends});
        PrepareDice(trial.game, {{6, 1}});
        EXPECT_EQ(trial.Score(), 13 + friends);
        EXPECT_EQ(trial.game.battle.moraleHeld, friends - 1);
    }
}

}  // namespace
}  // namespace varnstride
