// The strike of a target that answers, and the ground. Figures by hand.
#include <gtest/gtest.h>

#include <functional>

#include "battle/attack_field.h"
#include "battle/strikes.h"

namespace varnstride {
namespace {

using namespace words;

struct Scene {
    int by = kFrench;
    int on = kBritish;
    int terrain = 0;
    int card = 0;
    int visibility = 20;
    int roadTile = kNoRoad;  // of the target's cell
    int groundTile = 0;      // everywhere
};

struct AnswerCase {
    const char* name;
    int expected;
    Soldier target = {};
    Soldier attacker = {};
    Scene scene = {};
};

// Three points of strength count. Line infantry to its like: 5 x 3 + 0 = 15.
const AnswerCase kAnswers[] = {
    {"plain", 15},
    {"strength 2", 10, {.strength = 2}},
    {"unsteady: 11.25", 11, {.status = Unsteady}},
    {"shaken: 7.5", 7, {.status = Shaken}},
    {"attack column x 0.2", 3, {.formation = AttackColumn}},
    {"mixed order x 0.5", 7, {.formation = MixedOrder}},
    {"square x 0.25: 3.75", 3, {.formation = Square}},
    {"open order x 1.25: 18.75", 18, {.formation = OpenOrder}},
    {"march column x 0.1", 1, {.formation = MarchColumn}},
    {"no formation x 0.5", 7, {.formation = NoFormation}},
    {"smoke", 14, {}, {}, {.roadTile = kSmoke}},
    {"rifles", 16, {.weapon = Rifle}},
    {"disrupted", 14, {.disrupted = 1}},
    {"no ammunition", 14, {.ammunition = 0}},
    {"line against bayonets", 16, {}, {.activity = BayonetCharge}},
    {"column against bayonets", 3, {.formation = AttackColumn}, {.activity = BayonetCharge}},
    {"woods", 12, {}, {}, {.terrain = 3}},
    {"woods do not bind skirmishers", 18, {.formation = OpenOrder}, {}, {.terrain = 3}},
    {"militia", 14, {.quality = Militia}},
    {"conscripts", 14, {.quality = Conscript}},
    {"veterans", 16, {.quality = Veteran}},
    {"elite", 16, {.quality = Elite}},
    {"snow", 13, {}, {}, {.groundTile = 72}},
    {"dark", 7, {}, {}, {.visibility = 5}},
    {"card 2 of the French", 15, {}, {}, {.card = 2}},
    {"Austrian card 2", 13, {}, {}, {.by = kAustrian, .on = kFrench, .card = 2}},
    // The attacker's row counts, not the target's own.
    {"light infantry: 6 x 3 - 1", 17, {LightInfantry}},
    {"3 skirmish: 1 x 1.25 x 6 - 1", 6, {LightInfantry, OpenOrder, 3}},
    {"5 skirmish: 2 x 1.25 x 6 - 1", 14, {LightInfantry, OpenOrder, 5}},
    {"line to the guard: 15 + 2", 17, {}, {GuardInfantry}},
    {"a square has no matchup: 3", 3, {.formation = Square}, {GuardInfantry}},
    {"British guard: 8 x 3 - 2", 22, {GuardInfantry}},
    {"elite guard", 23, {.type = GuardInfantry, .quality = Elite}},
    {"Prussian grenadiers: 24 x 6 / 8 - 2", 16, {GuardInfantry}, {}, {.on = kPrussian}},
    {"guns: 6 x 3 + 3", 21, {FieldArtillery}},
    {"rockets: 3 x 3, no matchup", 9, {RocketArtillery}},
    {"horse to foot: 7 x 3, no matchup", 21, {LightCavalry}},
    {"a square shuts horse out: 21 - 20", 1, {LightCavalry}, {.formation = Square}},
    // To horse.
    {"line: 15 - 3", 12, {}, {LightCavalry}},
    {"mixed order: 7 - 3", 4, {.formation = MixedOrder}, {LightCavalry}},
    {"column: 3 - 4", 0, {.formation = AttackColumn}, {LightCavalry}},
    {"march column: 1 - 4", 0, {.formation = MarchColumn}, {LightCavalry}},
    {"square", 3, {.formation = Square}, {LightCavalry}},
    {"skirmishers", 18, {.formation = OpenOrder}, {LightCavalry}},
    {"the guard takes nothing off a line", 15, {}, {GuardCavalry}},
    {"guns: 18 + 4", 22, {FieldArtillery}, {LightCavalry}},
    {"limbered: 0 + 1", 1, {HorseArtillery, MarchColumn}, {LightCavalry}},
    {"12 pounders: 24 + 1", 25, {.type = HorseArtillery, .weapon = TwelvePounder}, {LightCavalry}},
    {"3 pounders: 12 + 1", 13, {.type = HorseArtillery, .weapon = ThreePounder}, {LightCavalry}},
    {"guns in snow: 22 - 2", 20, {FieldArtillery}, {LightCavalry}, {.groundTile = 108}},
    {"horse standing: 21 + 0 - 2", 19, {LightCavalry}, {LightCavalry}},
    {"horse charging", 21, {.type = LightCavalry, .activity = Charging}, {LightCavalry}},
    {"horse in column: 15.75 - 2", 13, {LightCavalry, AttackColumn}, {LightCavalry}},
    {"horse in open order: 15.75 - 2", 13, {LightCavalry, OpenOrder}, {LightCavalry}},
    {"no ammunition needed", 19, {.type = LightCavalry, .ammunition = 0}, {LightCavalry}},
    {"dark does not halve", 19, {LightCavalry}, {LightCavalry}, {.visibility = 3}},
    {"snow does not hamper", 19, {LightCavalry}, {LightCavalry}, {.groundTile = 72}},
    {"lancers: 24 + 1 - 3", 22, {Lancers}, {LightCavalry}},
    {"lancers charging: 24 + 1", 25, {.type = Lancers, .activity = Charging}, {LightCavalry}},
    {"horse of the guard: 0, no matchup", 0, {GuardCavalry}, {LightCavalry}},
};

TEST(DefenceStrike, CountsTheCircumstances) {
    for (const AnswerCase& answer : kAnswers) {
        const Scene& scene = answer.scene;
        FieldPlan plan = RowOfThree();
        plan.paint = [&](Cell, MapCell& cell) { cell.groundTile = scene.groundTile; };
        Duel duel(answer.attacker, answer.target, plan, scene.by, scene.on);
        duel.Face();
        duel.game.battle.terrainDefence = scene.terrain;
        duel.game.header.visibility = scene.visibility;
        duel.game.options.cardEffect = scene.card;
        duel.game.grid.At(duel.T().Place()).roadTile = scene.roadTile;
        EXPECT_EQ(ComputeDefenceStrike(duel.game).Value(), answer.expected) << answer.name;
    }
}

// An attacker who has just come over a stream, by the battlefield and his side: how many cells lie
// behind one, and the sums of their columns, of their rows, and of both multiplied.
TEST(DefenceStrike, GainsAtAStream) {
    struct StreamCase {
        int mapNumber;
        int attacker;
        std::array<int, 4> sums;
    };
    const StreamCase cases[] = {
        {1, kFrench, {12, 239, 213, 5817}},   {1, kBritish, {12, 244, 174, 4979}},
        {2, kFrench, {0, 0, 0, 0}},           {2, kBritish, {0, 0, 0, 0}},
        {3, kFrench, {21, 1099, 621, 29599}}, {3, kPrussian, {21, 1123, 538, 25003}},
        {4, kFrench, {3, 64, 156, 3345}},     {4, kPrussian, {3, 82, 159, 4360}},
        {7, kFrench, {6, 444, 321, 22675}},   {7, kPrussian, {6, 464, 303, 22716}},
        {8, kFrench, {0, 0, 0, 0}},           {8, kPrussian, {0, 0, 0, 0}},
    };
    for (const StreamCase& stream : cases) {
        FieldPlan plan = RowOfThree();
        plan.columns = 14;
        plan.areaHeight = 80;
        Duel duel({.actionPoints = 0}, {}, plan, stream.attacker,
                  stream.attacker == kFrench ? kPrussian : kFrench);
        duel.Face();
        duel.game.header.mapNumber = stream.mapNumber;
        duel.game.grid.LightAll();
        std::array<int, 4> sums{};
        for (int y = 1; y < 80; ++y) {
            for (int x = 1; x < 112; ++x) {
                duel.A().SetPlace({x, y});
                const int strike = ComputeDefenceStrike(duel.game).Value();
                EXPECT_EQ(strike, duel.game.battle.streamCrossed == 1 ? 17 : 15);
                if (strike == 15) continue;
                ++sums[0];
                sums[1] += x;
                sums[2] += y;
                sums[3] += x * y;
            }
        }
        EXPECT_EQ(sums, stream.sums) << stream.mapNumber << ", army " << stream.attacker;
    }
}

TEST(DefenceStrike, GainsAtAStreamOnlyAsFootFromWhoCameInSight) {
    struct BankCase {
        const char* name;
        Soldier attacker;
        UnitType defender;
        bool lit;
        int expected;
    };
    const BankCase cases[] = {
        {"over the stream", {.actionPoints = 0}, LineInfantry, true, 17},
        {"has not moved", {.actionPoints = 1}, LineInfantry, true, 15},
        {"in the dark", {.actionPoints = 0}, LineInfantry, false, 15},
        {"horse defends no bank", {.actionPoints = 0}, LightCavalry, true, 21},
    };
    for (const BankCase& bank : cases) {
        Duel duel(bank.attacker, {bank.defender});
        duel.Face();
        duel.game.header.mapNumber = 1;
        duel.A().SetPlace({7, 4});
        bank.lit ? duel.game.grid.LightAll() : duel.game.grid.ShadeAll();
        EXPECT_EQ(ComputeDefenceStrike(duel.game).Value(), bank.expected) << bank.name;
    }
}

TEST(TerrainDefence, IsThatOfTheBestSlot) {
    struct GroundCase {
        int defence;
        std::vector<int> tiles;
    };
    const GroundCase cases[] = {
        {1, {1, 9, 11, 5, 18, 99}},  // field, rough; clear ground, rivers and tents beside a field
        {2, {24, 26, 6, 8, 12, 14, 63, 65, 27, 29}},
        {3, {15, 17, 30, 35, 54, 61, 72, 75, 39, 41, 84, 89, 66, 71}},
        {4, {42, 47}},
    };
    const auto defenceWith = [](const std::function<void(MapCell&)>& paint) {
        FieldPlan plan = RowOfThree();
        plan.paint = [&](Cell cell, MapCell& mapCell) {
            if (cell == Cell{9, 1}) mapCell.terrainTile = 1;    // the first French slot of area 2
            if (cell == Cell{13, 4}) paint(mapCell);            // its third Allied slot
            if (cell == Cell{10, 2}) mapCell.terrainTile = 42;  // between the slots: no matter
        };
        AttackField field(plan);
        field.TakeInHand(field.Add(kFrench, AttackField::kMiddle, 1, Fighter(Leader)));
        SelectArea(field.game);
        ComputeTerrainDefence(field.game);
        return field.game.battle.terrainDefence;
    };
    for (const GroundCase& ground : cases) {
        for (int tile : ground.tiles) {
            EXPECT_EQ(defenceWith([&](MapCell& cell) { cell.terrainTile = tile; }), ground.defence)
                << tile;
        }
    }
    EXPECT_EQ(defenceWith([](MapCell& cell) { cell.overlayTile = 104; }), 2) << "palisade";
    EXPECT_EQ(defenceWith([](MapCell& cell) { cell.roadTile = kFire; }), 4);
    EXPECT_EQ(defenceWith([](MapCell& cell) { cell.roadTile = kSmoke; }), 1);
}

}  // namespace
}  // namespace varnstride
