// The strike of an attacker: what each circumstance makes of a plain one. Figures by hand.
#include <gtest/gtest.h>

#include <functional>

#include "battle/attack_field.h"
#include "battle/strikes.h"

namespace varnstride {
namespace {

struct StrikeSetting {
    FieldPlan plan = RowOfThree();
    int attackerArmy = kFrench;
    int targetArmy = kBritish;
    UnitType attacker = UnitType::LineInfantry;
    UnitType target = UnitType::LineInfantry;
};

// An attacker and a target in the middle area, ready for the strike.
struct StrikeField : AttackField {
    explicit StrikeField(const StrikeSetting& setting = {}) : AttackField(setting.plan) {
        attackerId = Add(setting.attackerArmy, kMiddle, 1, Fighter(setting.attacker));
        targetId = Add(setting.targetArmy, kMiddle, 1, Fighter(setting.target));
    }

    Unit& A() { return game.At(attackerId); }
    Unit& T() { return game.At(targetId); }
    PlayCell& AttackersCell() { return game.grid.At(A().Place()); }

    int Strike() {
        const int terrain = game.battle.terrainDefence;
        Prepare(attackerId);
        game.battle.terrainDefence = terrain;
        game.battle.targetUnit = targetId.index;
        return ComputeAttackStrike(game).Value();
    }

    UnitId attackerId;
    UnitId targetId;
};

using Change = std::function<void(StrikeField&)>;

struct StrikeCase {
    const char* name;
    int expected;
    Change change;
};

void ExpectStrikes(const StrikeSetting& setting, const std::vector<StrikeCase>& cases) {
    for (const StrikeCase& strikeCase : cases) {
        StrikeField field(setting);
        strikeCase.change(field);
        EXPECT_EQ(field.Strike(), strikeCase.expected) << strikeCase.name;
    }
}

// Line infantry of 4 on line infantry: (5 + 0) x 4 = 20.
TEST(AttackStrike, OfLineInfantry) {
    ExpectStrikes(
        {},
        {
            {"plain", 20, [](auto&) {}},
            {"no more than 5 points in front", 25, [](auto& f) { f.A().strength = 6; }},
            {"3 in broken ground, -2", 13, [](auto& f) { f.game.battle.terrainDefence = 2; }},
            {"field: -1", 19, [](auto& f) { f.game.battle.terrainDefence = 1; }},
            {"unsteady x 0.75", 15, [](auto& f) { f.A().status = UnitStatus::Unsteady; }},
            {"shaken x 0.5", 10, [](auto& f) { f.A().status = UnitStatus::Shaken; }},
            {"attack column x 2", 40, [](auto& f) { f.A().formation = Formation::AttackColumn; }},
            {"mixed order x 1.5", 30, [](auto& f) { f.A().formation = Formation::MixedOrder; }},
            {"square x 0.25", 5, [](auto& f) { f.A().formation = Formation::Square; }},
            {"open order x 1.25", 25, [](auto& f) { f.A().formation = Formation::OpenOrder; }},
            {"march column x 0.1", 2, [](auto& f) { f.A().formation = Formation::MarchColumn; }},
            {"no formation x 0.5", 10, [](auto& f) { f.A().formation = Formation::NoFormation; }},
            {"elite: base 6", 24, [](auto& f) { f.A().quality = Quality::Elite; }},
            {"veteran: base 6", 24, [](auto& f) { f.A().quality = Quality::Veteran; }},
            {"militia: base 4", 16, [](auto& f) { f.A().quality = Quality::Militia; }},
            {"conscripts: base 4", 16, [](auto& f) { f.A().quality = Quality::Conscript; }},
            {"smoke: base 4", 16, [](auto& f) { f.AttackersCell().roadTile = kSmoke; }},
            {"fire: base 4", 16, [](auto& f) { f.game.battle.areaOnFire = 1; }},
            {"advantage 2: base 7", 28, [](auto& f) { f.game.battle.tacticalAdvantage = 2; }},
            {"advantage without leadership", 20,
             [](auto& f) {
                 f.game.battle.tacticalAdvantage = 2;
                 f.game.battle.combinedLeadership = 6;
                 f.game.battle.requiredLeadership = 7;
             }},
            {"advantage -3 in square: (5 - 3) x 4 x 0.25", 2,
             [](auto& f) {
                 f.game.battle.tacticalAdvantage = -3;
                 f.A().formation = Formation::Square;
             }},
            {"enemy leader", 19,
             [](auto& f) { f.Add(kBritish, f.kMiddle, 2, Fighter(UnitType::Leader)); }},
            {"rifles", 21, [](auto& f) { f.A().weapon = Weapon::Rifle; }},
            {"bayonets", 22, [](auto& f) { f.A().activity = UnitActivity::BayonetCharge; }},
            {"target routed", 22, [](auto& f) { f.T().status = UnitStatus::Routed; }},
            {"target shaken", 21, [](auto& f) { f.T().status = UnitStatus::Shaken; }},
            {"combined arms", 21, [](auto& f) { f.game.battle.combinedArms = 1; }},
            {"no ammunition", 19, [](auto& f) { f.A().ammunition = 0; }},
            {"disrupted", 19, [](auto& f) { f.A().disrupted = 1; }},
            {"no Action Points", 19, [](auto& f) { f.A().actionPoints = 0; }},
            {"French card 1", 21, [](auto& f) { f.game.options.cardEffect = 1; }},
            {"French card 2 is for barrages", 20, [](auto& f) { f.game.options.cardEffect = 2; }},
            {"French card 3", 22, [](auto& f) { f.game.options.cardEffect = 3; }},
            {"draw card", 19, [](auto& f) { f.game.state.strikeDrawCard = 1; }},
            {"dark: halved after all", 10, [](auto& f) { f.game.header.visibility = 5; }},
            {"visibility 6 is light", 20, [](auto& f) { f.game.header.visibility = 6; }},
            {"never above 50: (6 + 4) x 8 = 80", 50,
             [](auto& f) {
                 f.A().formation = Formation::AttackColumn;
                 f.A().quality = Quality::Elite;
                 f.game.battle.tacticalAdvantage = 4;
             }},
            {"never below 0: 2 - 1 - 4", 0,
             [](auto& f) {
                 f.A().formation = Formation::MarchColumn;
                 f.A().disrupted = 1;
                 f.game.battle.terrainDefence = 4;
             }},
        });
}

TEST(AttackStrike, ScalesTheTacticalAdvantageForTheReport) {
    StrikeField field;
    field.game.battle.tacticalAdvantage = 2;
    field.A().formation = Formation::Square;
    EXPECT_EQ(field.Strike(), 7);
    EXPECT_EQ(field.game.battle.tacticalAdvantage, 2);  // 2 x 4 x 0.25
}

// Light infantry on light infantry: (6 + 0) x 4 = 24.
TEST(AttackStrike, OfLightInfantry) {
    ExpectStrikes({.attacker = UnitType::LightInfantry, .target = UnitType::LightInfantry},
                  {
                      {"plain", 24, [](auto&) {}},
                      {"skirmish line of 3: 1 x 1.25 x 6 = 7.5", 7,
                       [](auto& f) {
                           f.A().strength = 3;
                           f.A().formation = Formation::OpenOrder;
                       }},
                      {"skirmish line of 5: 2 x 1.25 x 6", 15,
                       [](auto& f) {
                           f.A().strength = 5;
                           f.A().formation = Formation::OpenOrder;
                       }},
                      {"skirmish line of 6: 3 x 1.25 x 6 = 22.5", 22,
                       [](auto& f) {
                           f.A().strength = 6;
                           f.A().formation = Formation::OpenOrder;
                       }},
                      {"at skirmishers, no -2 for light infantry", 24,
                       [](auto& f) { f.T().formation = Formation::OpenOrder; }},
                  });
    ExpectStrikes({.target = UnitType::LightInfantry},
                  {{"line infantry at skirmishers: (5 - 1) x 4 - 2", 14,
                    [](auto& f) { f.T().formation = Formation::OpenOrder; }}});
}

TEST(AttackStrike, OfGuards) {
    // (8 + 2) x 4 = 40; quality does not count.
    ExpectStrikes({.attacker = UnitType::GuardInfantry},
                  {{"French", 40, [](auto& f) { f.A().quality = Quality::Elite; }}});
    // Prussian grenadiers: 10 x 4 x 6 / 8 = 30.
    ExpectStrikes(
        {.attackerArmy = kPrussian, .targetArmy = kFrench, .attacker = UnitType::GuardInfantry},
        {{"Prussian", 30, [](auto& f) { f.A().quality = Quality::Militia; }}});
    // British: 40 + 2 for their line.
    ExpectStrikes(
        {.attackerArmy = kBritish, .targetArmy = kFrench, .attacker = UnitType::GuardInfantry},
        {{"British line", 42, [](auto&) {}},
         {"British column: 80", 50, [](auto& f) { f.A().formation = Formation::AttackColumn; }}});
}

TEST(AttackStrike, OfCarbinesOnFoot) {
    // Three points of front: (4 + 0) x 3 = 12; the carbine takes 1.
    ExpectStrikes({.attacker = UnitType::LightDragoonsDismounted},
                  {{"carbine", 11, [](auto& f) { f.A().weapon = Weapon::Carbine; }},
                   {"musket", 12, [](auto& f) { f.A().weapon = Weapon::Musket; }}});
    ExpectStrikes({.attacker = UnitType::DragoonsDismounted},
                  {{"carbine", 12, [](auto& f) { f.A().weapon = Weapon::Carbine; }}});
}

// Light cavalry of 4 on line infantry: three points of front, (7 + 2) x 3 = 27.
TEST(AttackStrike, OfLightCavalry) {
    ExpectStrikes(
        {.attacker = UnitType::LightCavalry},
        {
            {"plain", 27, [](auto&) {}},
            {"column x 1.5: 40.5", 40, [](auto& f) { f.A().formation = Formation::AttackColumn; }},
            {"open order x 0.75: 20.25", 20,
             [](auto& f) { f.A().formation = Formation::OpenOrder; }},
            {"mixed order: no factor", 27,
             [](auto& f) { f.A().formation = Formation::MixedOrder; }},
            {"charge on a British line", 31,
             [](auto& f) { f.A().activity = UnitActivity::Charging; }},
            {"charge on a British column", 29,
             [](auto& f) {
                 f.A().activity = UnitActivity::Charging;
                 f.T().formation = Formation::AttackColumn;
             }},
            {"square", 2, [](auto& f) { f.T().formation = Formation::Square; }},
            {"charge on a square", 4,
             [](auto& f) {
                 f.A().activity = UnitActivity::Charging;
                 f.T().formation = Formation::Square;
             }},
            {"among skirmishers", 32, [](auto& f) { f.T().formation = Formation::OpenOrder; }},
            {"among skirmishers in a field", 31,
             [](auto& f) {
                 f.T().formation = Formation::OpenOrder;
                 f.game.battle.terrainDefence = 1;
             }},
            {"among skirmishers in a village", 25,
             [](auto& f) {
                 f.T().formation = Formation::OpenOrder;
                 f.game.battle.terrainDefence = 2;
             }},
            {"foot in woods: -2 - 3", 22, [](auto& f) { f.game.battle.terrainDefence = 3; }},
            {"no ammunition needed", 27, [](auto& f) { f.A().ammunition = 0; }},
            {"dark does not halve", 27, [](auto& f) { f.game.header.visibility = 2; }},
        });
    ExpectStrikes({.targetArmy = kPrussian, .attacker = UnitType::LightCavalry},
                  {{"charge on a Prussian line", 29,
                    [](auto& f) { f.A().activity = UnitActivity::Charging; }}});
}

TEST(AttackStrike, OfHorseOnHorse) {
    ExpectStrikes(
        {.attacker = UnitType::LightCavalry, .target = UnitType::LightCavalry},
        {{"even", 21, [](auto&) {}},
         {"counter-charged: +2 - 2", 21, [](auto& f) { f.A().activity = UnitActivity::Charging; }},
         {"on horse that reforms: +2", 23,
          [](auto& f) {
              f.A().activity = UnitActivity::Charging;
              f.T().activity = UnitActivity::Reforming;
          }},
         {"on shaken horse: +2 + 1", 24, [](auto& f) {
              f.A().activity = UnitActivity::Charging;
              f.T().status = UnitStatus::Shaken;
          }}});
    ExpectStrikes({.attacker = UnitType::LightCavalry, .target = UnitType::Lancers},
                  {{"against lancers: (7 + 1) x 3 + 2", 26, [](auto&) {}}});
    ExpectStrikes({.attacker = UnitType::Lancers},
                  {{"lances: (8 + 4) x 3", 36, [](auto&) {}},
                   {"lances on a square: 36 + 1 - 25", 12,
                    [](auto& f) { f.T().formation = Formation::Square; }}});
    ExpectStrikes({.attacker = UnitType::HeavyCavalry},
                  {{"a square counts after the limit: 50 - 25", 25, [](auto& f) {
                        f.A().formation = Formation::AttackColumn;  // (9 + 4) x 4.5 = 58
                        f.T().formation = Formation::Square;
                    }}});
    ExpectStrikes(
        {.attackerArmy = kBritish, .targetArmy = kFrench, .attacker = UnitType::GuardCavalry},
        {{"guard horse rides squares down: (0 + 5) x 3", 15,
          [](auto& f) { f.T().formation = Formation::Square; }},
         {"but does not scatter skirmishers", 15,
          [](auto& f) { f.T().formation = Formation::OpenOrder; }}});
    // The French do not count theirs as horse: alone it has no support, 15 x 0.5.
    ExpectStrikes({.attacker = UnitType::GuardCavalry},
                  {{"alone", 7, [](auto&) {}}, {"with a friend", 15, [](auto& f) {
                                                    f.Add(kFrench, f.kWest, 1,
                                                          Fighter(UnitType::LightInfantry));
                                                }}});
}

// 6-pounders of 4 on line infantry: (6 + 0) x 3 = 18.
TEST(AttackStrike, OfGuns) {
    ExpectStrikes(
        {.attacker = UnitType::FieldArtillery},
        {
            {"6 pounders", 18, [](auto&) {}},
            {"3 pounders", 12, [](auto& f) { f.A().weapon = Weapon::ThreePounder; }},
            {"12 pounders", 24, [](auto& f) { f.A().weapon = Weapon::TwelvePounder; }},
            {"no calibre", 12, [](auto& f) { f.A().weapon = Weapon::None; }},
            {"square", 22, [](auto& f) { f.T().formation = Formation::Square; }},
            {"skirmishers", 17, [](auto& f) { f.T().formation = Formation::OpenOrder; }},
            {"column", 20, [](auto& f) { f.T().formation = Formation::AttackColumn; }},
            {"mixed order", 20, [](auto& f) { f.T().formation = Formation::MixedOrder; }},
            {"no bonus on the shaken", 18, [](auto& f) { f.T().status = UnitStatus::Shaken; }},
            {"guns need no formation", 18,
             [](auto& f) { f.A().formation = Formation::NoFormation; }},
            {"French card 1", 19, [](auto& f) { f.game.options.cardEffect = 1; }},
        });
}

// The gun's own area is dark in a barrage: only friends next door support it.
TEST(AttackStrike, OfABarrage) {
    const StrikeSetting guns{.attacker = UnitType::FieldArtillery};
    const auto bombard = [](StrikeField& f) { f.game.state.bombardmentMode = 1; };
    ExpectStrikes(guns, {{"alone: 6 x 1.5 + 4", 13, bombard},
                         {"friends next door: 18 + 4", 22,
                          [&](auto& f) {
                              bombard(f);
                              f.Add(kFrench, f.kEast, 1, Fighter(UnitType::LightInfantry));
                          }},
                         {"a leader next door is a friend", 22,
                          [&](auto& f) {
                              bombard(f);
                              f.Add(kFrench, f.kWest, 1, Fighter(UnitType::Leader));
                          }},
                         {"friends in the gun's own area are none", 13,
                          [&](auto& f) {
                              bombard(f);
                              f.Add(kFrench, f.kMiddle, 2, Fighter(UnitType::LightInfantry));
                          }},
                         {"nothing for shells on a mob: 9", 9,
                          [&](auto& f) {
                              bombard(f);
                              f.T().formation = Formation::NoFormation;
                          }},
                         {"French card 2: 13 + 2", 15, [&](auto& f) {
                              bombard(f);
                              f.game.options.cardEffect = 2;
                          }}});
}

TEST(AttackStrike, LeavesSelectionAndActionPointsAsTheyWere) {
    StrikeField field;
    field.A().actionPoints = 2;
    field.game.state.targetCell = {3, 3};
    field.Strike();
    EXPECT_EQ(field.A().actionPoints, 2);
    EXPECT_EQ(field.game.state.targetCell, (Cell{3, 3}));
    EXPECT_EQ(field.game.state.selectedCell, field.A().Place());
}

TEST(AttackStrike, CardsOfTheAlliesAreForTheirArms) {
    struct CardCase {
        int army;
        int card;
        UnitType attacker;
        int plain;
        int withCard;
    };
    // Plain strikes on French line infantry: light cavalry 27, guns 18, line infantry 20 (+2 for
    // the British line), Austrian and Prussian line infantry 20.
    const CardCase cases[] = {
        {kBritish, 1, UnitType::LightCavalry, 27, 28},
        {kBritish, 1, UnitType::LineInfantry, 22, 22},
        {kBritish, 2, UnitType::FieldArtillery, 18, 19},
        {kBritish, 3, UnitType::LineInfantry, 22, 24},
        {kAustrian, 1, UnitType::LightCavalry, 27, 28},
        {kAustrian, 2, UnitType::LineInfantry, 20, 20},
        {kAustrian, 3, UnitType::LineInfantry, 20, 21},
        {kPrussian, 1, UnitType::GuardCavalry, 15, 15},
        {kPrussian, 2, UnitType::HorseArtillery, 18, 19},
        {kPrussian, 3, UnitType::LineInfantry, 20, 21},
        {kRussian, 1, UnitType::LightCavalry, 27, 27},
    };
    for (const CardCase& cardCase : cases) {
        for (int card : {0, cardCase.card}) {
            StrikeField field({.attackerArmy = cardCase.army,
                               .targetArmy = kFrench,
                               .attacker = cardCase.attacker});
            field.game.options.cardEffect = card;
            EXPECT_EQ(field.Strike(), card == 0 ? cardCase.plain : cardCase.withCard)
                << "army " << cardCase.army << " card " << card;
        }
    }
}

TEST(AttackStrike, DrawCardIsGoodForTheAustriansHorseAndGuns) {
    const auto draw = [](StrikeField& f) { f.game.state.strikeDrawCard = 1; };
    ExpectStrikes({.attackerArmy = kAustrian, .targetArmy = kFrench},
                  {{"line infantry", 20, draw}});
    ExpectStrikes(
        {.attackerArmy = kAustrian, .targetArmy = kFrench, .attacker = UnitType::LightCavalry},
        {{"horse", 28, draw}});
    ExpectStrikes(
        {.attackerArmy = kAustrian, .targetArmy = kFrench, .attacker = UnitType::HorseArtillery},
        {{"guns", 19, draw}});
}

TEST(AttackStrike, SnowHampersFootAndGuns) {
    FieldPlan frozen = RowOfThree();
    frozen.paint = [](Cell, MapCell& cell) { cell.groundTile = 72; };
    const auto nothing = [](StrikeField&) {};
    ExpectStrikes({.plan = frozen}, {{"foot", 18, nothing}});
    ExpectStrikes({.plan = frozen, .attacker = UnitType::FieldArtillery}, {{"guns", 16, nothing}});
    ExpectStrikes({.plan = frozen, .attacker = UnitType::LightCavalry}, {{"horse", 27, nothing}});
}

// Area 28 of Hougoumont east of column 20; areas of the field are 8 columns wide and numbered from
// 21, so the eighth is area 28 with columns 56 to 63.
TEST(AttackStrike, ComesToNothingFromGroundThatGivesNoWay) {
    struct BlockCase {
        int mapNumber;
        int expected;
    };
    for (const BlockCase block : {BlockCase{2, 20}, BlockCase{1, 40}}) {
        FieldPlan plan;
        plan.mapNumber = block.mapNumber;
        plan.columns = 9;
        AttackField field(plan);
        Unit attacker = Fighter(UnitType::LineInfantry);
        attacker.formation = Formation::AttackColumn;  // (5 + 0) x 8 = 40
        const UnitId attackerId = field.Add(kFrench, 8, 1, attacker);
        const UnitId targetId = field.Add(kBritish, 8, 1, Fighter(UnitType::LineInfantry));
        field.Prepare(attackerId);
        field.game.battle.targetUnit = targetId.index;
        EXPECT_EQ(ComputeAttackStrike(field.game).Value(), block.expected);
    }
}

// Sums of the points of each arm over all it can meet, and of all over each: a slip in one cell of
// the table shows in both.
TEST(Effectiveness, OfEachArm) {
    struct ArmSums {
        UnitType type;
        int asAttacker;
        int asTarget;
        int squares;  // of the points as attacker
    };
    constexpr ArmSums kSums[] = {
        {UnitType::LightInfantry, 15, 16, 33}, {UnitType::LineInfantry, 5, 20, 27},
        {UnitType::GuardInfantry, 25, 13, 69}, {UnitType::LightDragoonsDismounted, 16, 19, 58},
        {UnitType::Engineers, -21, 55, 55},    {UnitType::DragoonsDismounted, 16, 19, 58},
        {UnitType::Leader, 0, 0, 0},           {UnitType::LightCavalry, 19, 18, 81},
        {UnitType::Lancers, 42, 17, 190},      {UnitType::HeavyCavalry, 45, 1, 209},
        {UnitType::MediumCavalry, 33, 7, 133}, {UnitType::CossackCavalry, 4, 36, 92},
        {UnitType::GuardCavalry, 52, 0, 258},  {UnitType::MortarArtillery, 0, 0, 0},
        {UnitType::RocketArtillery, 0, 0, 0},  {UnitType::HorseArtillery, 8, -3, 26},
        {UnitType::FieldArtillery, 8, 49, 26}, {UnitType::SupplyWagon, 0, 0, 0},
    };
    for (const ArmSums& sums : kSums) {
        ArmSums found{sums.type, 0, 0, 0};
        for (int other = 0; other < kStrikeTypes; ++other) {
            const int points = EffectivenessOf(sums.type, UnitType{other});
            found.asAttacker += points;
            found.squares += points * points;
            found.asTarget += EffectivenessOf(UnitType{other}, sums.type);
        }
        const int type = static_cast<int>(sums.type);
        EXPECT_EQ(found.asAttacker, sums.asAttacker) << "type " << type;
        EXPECT_EQ(found.asTarget, sums.asTarget) << "type " << type;
        EXPECT_EQ(found.squares, sums.squares) << "type " << type;
    }
    EXPECT_EQ(EffectivenessOf(kNeverClosesUp, UnitType::LineInfantry), 0);
}

}  // namespace
}  // namespace varnstride
