// The strike of a target that answers, and the ground. Figures by hand.
#include <gtest/gtest.h>

#include <functional>

#include "battle/attack_field.h"
#include "battle/strikes.h"

namespace varnstride {
namespace {

struct AnswerField : AttackField {
    AnswerField(int attackerArmy, int targetArmy, UnitType attacker, UnitType target)
        : AttackField() {
        attackerId = Add(attackerArmy, kMiddle, 1, Fighter(attacker));
        targetId = Add(targetArmy, kMiddle, 1, Fighter(target));
    }

    Unit& A() { return game.At(attackerId); }
    Unit& T() { return game.At(targetId); }

    int Answer() {
        const int terrain = game.battle.terrainDefence;
        Prepare(attackerId);
        game.battle.terrainDefence = terrain;
        game.battle.targetUnit = targetId.index;
        return ComputeDefenceStrike(game).Value();
    }

    UnitId attackerId;
    UnitId targetId;
};

struct AnswerCase {
    const char* name;
    int expected;
    std::function<void(AnswerField&)> change;
};

void ExpectAnswers(UnitType attacker, UnitType target, const std::vector<AnswerCase>& cases,
                   int attackerArmy = kFrench, int targetArmy = kBritish) {
    for (const AnswerCase& answerCase : cases) {
        AnswerField field(attackerArmy, targetArmy, attacker, target);
        answerCase.change(field);
        EXPECT_EQ(field.Answer(), answerCase.expected) << answerCase.name;
    }
}

// Line infantry of 4, of which 3 count, answers line infantry: 5 x 3 + 0 = 15.
TEST(DefenceStrike, OfLineInfantryToFoot) {
    ExpectAnswers(
        UnitType::LineInfantry, UnitType::LineInfantry,
        {
            {"plain", 15, [](auto&) {}},
            {"strength 2", 10, [](auto& f) { f.T().strength = 2; }},
            {"unsteady: 11.25", 11, [](auto& f) { f.T().status = UnitStatus::Unsteady; }},
            {"shaken: 7.5", 7, [](auto& f) { f.T().status = UnitStatus::Shaken; }},
            {"attack column x 0.2", 3, [](auto& f) { f.T().formation = Formation::AttackColumn; }},
            {"mixed order x 0.5", 7, [](auto& f) { f.T().formation = Formation::MixedOrder; }},
            {"square x 0.25: 3.75", 3, [](auto& f) { f.T().formation = Formation::Square; }},
            {"open order x 1.25: 18.75", 18,
             [](auto& f) { f.T().formation = Formation::OpenOrder; }},
            {"march column x 0.1", 1, [](auto& f) { f.T().formation = Formation::MarchColumn; }},
            {"no formation x 0.5", 7, [](auto& f) { f.T().formation = Formation::NoFormation; }},
            {"smoke", 14, [](auto& f) { f.game.grid.At(f.T().Place()).roadTile = kSmoke; }},
            {"rifles", 16, [](auto& f) { f.T().weapon = Weapon::Rifle; }},
            {"disrupted", 14, [](auto& f) { f.T().disrupted = 1; }},
            {"no ammunition", 14, [](auto& f) { f.T().ammunition = 0; }},
            {"line against bayonets", 16,
             [](auto& f) { f.A().activity = UnitActivity::BayonetCharge; }},
            {"woods", 12, [](auto& f) { f.game.battle.terrainDefence = 3; }},
            {"woods do not bind skirmishers", 18,
             [](auto& f) {
                 f.game.battle.terrainDefence = 3;
                 f.T().formation = Formation::OpenOrder;
             }},
            {"militia", 14, [](auto& f) { f.T().quality = Quality::Militia; }},
            {"elite", 16, [](auto& f) { f.T().quality = Quality::Elite; }},
            {"dark", 7, [](auto& f) { f.game.header.visibility = 5; }},
            {"card 2 is the Austrians'", 15, [](auto& f) { f.game.options.cardEffect = 2; }},
        });
    ExpectAnswers(UnitType::LineInfantry, UnitType::LineInfantry,
                  {{"Austrian card 2", 13, [](auto& f) { f.game.options.cardEffect = 2; }}},
                  kAustrian, kFrench);
}

// The attacker's row counts, not the target's own.
TEST(DefenceStrike, TakesTheMatchupOfTheAttacker) {
    const auto plain = [](AnswerField&) {};
    const auto square = [](AnswerField& f) { f.T().formation = Formation::Square; };
    // 6 x 3 - 1: line infantry has -1 against light infantry, which has +1 against it.
    ExpectAnswers(UnitType::LineInfantry, UnitType::LightInfantry, {{"light", 17, plain}});
    ExpectAnswers(UnitType::GuardInfantry, UnitType::LineInfantry,
                  {{"guard: 15 + 2", 17, plain}, {"not in square: 3", 3, square}});
    // 6-pounders: 6 x 3 + 3.
    ExpectAnswers(UnitType::LineInfantry, UnitType::FieldArtillery, {{"guns", 21, plain}});
    // Horse before foot: 7 x 3, no matchup.
    ExpectAnswers(UnitType::LineInfantry, UnitType::LightCavalry,
                  {{"horse", 21, plain}, {"a square shuts it out", 1, [](auto& f) {
                                              f.A().formation = Formation::Square;
                                          }}});
}

TEST(DefenceStrike, ToHorse) {
    const auto plain = [](AnswerField&) {};
    ExpectAnswers(
        UnitType::LightCavalry, UnitType::LineInfantry,
        {
            {"line: 15 - 3", 12, plain},
            {"mixed order: 7 - 3", 4, [](auto& f) { f.T().formation = Formation::MixedOrder; }},
            {"column: 3 - 4", 0, [](auto& f) { f.T().formation = Formation::AttackColumn; }},
            {"march column: 1 - 4", 0, [](auto& f) { f.T().formation = Formation::MarchColumn; }},
            {"square", 3, [](auto& f) { f.T().formation = Formation::Square; }},
            {"skirmishers", 18, [](auto& f) { f.T().formation = Formation::OpenOrder; }},
        });
    ExpectAnswers(UnitType::GuardCavalry, UnitType::LineInfantry,
                  {{"the guard takes nothing off a line", 15, plain}});
    // 18 + 4
    ExpectAnswers(UnitType::LightCavalry, UnitType::FieldArtillery, {{"guns", 22, plain}});
    // 21 + 0 - 2; charging 21; column x 0.75: 15 - 2
    ExpectAnswers(
        UnitType::LightCavalry, UnitType::LightCavalry,
        {{"standing", 19, plain},
         {"charging", 21, [](auto& f) { f.T().activity = UnitActivity::Charging; }},
         {"column: 15.75 - 2", 13, [](auto& f) { f.T().formation = Formation::AttackColumn; }},
         {"open order: 15.75 - 2", 13, [](auto& f) { f.T().formation = Formation::OpenOrder; }},
         {"no ammunition needed", 19, [](auto& f) { f.T().ammunition = 0; }},
         {"dark does not halve", 19, [](auto& f) { f.game.header.visibility = 3; }}});
    // lancers: 24 + 1 - 3
    ExpectAnswers(UnitType::LightCavalry, UnitType::Lancers, {{"lancers", 22, plain}});
    // guard horse: 0 and no matchup
    ExpectAnswers(UnitType::LightCavalry, UnitType::GuardCavalry, {{"guard", 0, plain}});
}

TEST(DefenceStrike, OfGunsAndGuards) {
    ExpectAnswers(
        UnitType::LightCavalry, UnitType::HorseArtillery,
        {{"limbered: 0 + 1", 1, [](auto& f) { f.T().formation = Formation::MarchColumn; }},
         {"12 pounders: 24 + 1", 25, [](auto& f) { f.T().weapon = Weapon::TwelvePounder; }},
         {"3 pounders: 12 + 1", 13, [](auto& f) { f.T().weapon = Weapon::ThreePounder; }}});
    const auto plain = [](AnswerField&) {};
    // 8 x 3 x 6 / 8 - 2; quality counts for a guard that answers
    ExpectAnswers(UnitType::LineInfantry, UnitType::GuardInfantry, {{"Prussian", 16, plain}},
                  kFrench, kPrussian);
    ExpectAnswers(UnitType::LineInfantry, UnitType::GuardInfantry,
                  {{"British", 22, plain},
                   {"British elite", 23, [](auto& f) { f.T().quality = Quality::Elite; }}});
    ExpectAnswers(UnitType::LineInfantry, UnitType::LightInfantry,
                  {{"skirmish line of 3: 1 x 1.25 x 6 - 1", 6, [](auto& f) {
                        f.T().strength = 3;
                        f.T().formation = Formation::OpenOrder;
                    }}});
}

// The first slots of area 1 on Quatre Bras lie behind a stream.
TEST(DefenceStrike, AtAStream) {
    FieldPlan plan = RowOfThree();
    plan.mapNumber = 1;
    plan.redraw = [](std::vector<AreaRow>& rows) {
        rows[0].frenchSlots = {{{2, 2}, {5, 2}, {7, 4}}};
        rows[0].alliedSlots = {{{3, 4}, {5, 4}, {1, 1}}};
    };
    struct StreamCase {
        const char* name;
        int slot;
        int actionPoints;
        UnitType defender;
        int expected;
    };
    const StreamCase cases[] = {
        {"over the stream", 3, 0, UnitType::LineInfantry, 17},
        {"has not moved", 3, 1, UnitType::LineInfantry, 15},
        {"slot without a stream", 1, 0, UnitType::LineInfantry, 15},
        {"horse defends no bank", 3, 0, UnitType::LightCavalry, 21},
    };
    for (const StreamCase& stream : cases) {
        AttackField field(plan);
        Unit attacker = Fighter(UnitType::LineInfantry);
        attacker.actionPoints = stream.actionPoints;
        const UnitId attackerId = field.Add(kFrench, 1, stream.slot, attacker);
        const UnitId targetId = field.Add(kBritish, 1, 1, Fighter(stream.defender));
        field.Prepare(attackerId);
        field.game.battle.targetUnit = targetId.index;
        field.game.grid.LightAll();
        EXPECT_EQ(ComputeDefenceStrike(field.game).Value(), stream.expected) << stream.name;
        EXPECT_EQ(field.game.battle.streamCrossed, stream.expected == 17 ? 1 : 0) << stream.name;
    }
}

TEST(TerrainDefence, IsThatOfTheBestSlot) {
    struct GroundCase {
        const char* name;
        int expected;
        std::function<void(MapCell&)> paint;
    };
    const GroundCase cases[] = {
        {"clear", 0, [](MapCell&) {}},
        {"field", 1, [](MapCell& cell) { cell.terrainTile = 1; }},
        {"rough", 1, [](MapCell& cell) { cell.terrainTile = 11; }},
        {"village", 2, [](MapCell& cell) { cell.terrainTile = 24; }},
        {"orchard", 2, [](MapCell& cell) { cell.terrainTile = 8; }},
        {"marsh", 2, [](MapCell& cell) { cell.terrainTile = 12; }},
        {"swamp", 2, [](MapCell& cell) { cell.terrainTile = 65; }},
        {"vineyard", 2, [](MapCell& cell) { cell.terrainTile = 27; }},
        {"palisade", 2, [](MapCell& cell) { cell.overlayTile = 104; }},
        {"woodland", 3, [](MapCell& cell) { cell.terrainTile = 54; }},
        {"building", 3, [](MapCell& cell) { cell.terrainTile = 84; }},
        {"rocks", 3, [](MapCell& cell) { cell.terrainTile = 71; }},
        {"forest", 4, [](MapCell& cell) { cell.terrainTile = 42; }},
        {"fire", 4, [](MapCell& cell) { cell.roadTile = kFire; }},
        {"smoke", 0, [](MapCell& cell) { cell.roadTile = kSmoke; }},
        {"river", 0, [](MapCell& cell) { cell.terrainTile = 18; }},
    };
    for (const GroundCase& ground : cases) {
        FieldPlan plan = RowOfThree();
        plan.paint = [&](Cell cell, MapCell& mapCell) {
            if (cell == Cell{9, 1}) mapCell.terrainTile = 1;    // the first French slot of area 2
            if (cell == Cell{13, 4}) ground.paint(mapCell);     // its third Allied slot
            if (cell == Cell{10, 2}) mapCell.terrainTile = 42;  // between the slots: no matter
        };
        AttackField field(plan);
        field.TakeInHand(field.Add(kFrench, AttackField::kMiddle, 1, Fighter(UnitType::Leader)));
        SelectArea(field.game);
        ComputeTerrainDefence(field.game);
        EXPECT_EQ(field.game.battle.terrainDefence, std::max(1, ground.expected)) << ground.name;
    }
}

}  // namespace
}  // namespace varnstride
