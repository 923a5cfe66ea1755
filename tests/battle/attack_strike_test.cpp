// The strike of an attacker: what each circumstance makes of a plain one. Figures by hand.
#include <gtest/gtest.h>

#include "battle/attack_field.h"
#include "battle/strikes.h"

namespace varnstride {
namespace {

using namespace words;

struct Bystander {
    int army;
    int area;
    UnitType type;
};

struct Scene {
    int by = kFrench;
    int on = kBritish;
    int terrain = 0;
    int advantage = 0;
    int leadership = 0;  // of all attackers
    int needed = 0;      // by the tactic
    int card = 0;
    int drawCard = 0;
    int barrage = 0;
    int visibility = 20;
    int combinedArms = 0;
    int fire = 0;
    int roadTile = kNoRoad;  // of the attacker's cell
    int groundTile = 0;      // everywhere
    std::vector<Bystander> others = {};
};

struct StrikeCase {
    const char* name;
    int expected;
    Soldier attacker = {};
    Soldier target = {};
    Scene scene = {};
};

int StrikeOf(const StrikeCase& strike, BattleState* after = nullptr) {
    const Scene& scene = strike.scene;
    FieldPlan plan = RowOfThree();
    plan.paint = [&](Cell, MapCell& cell) { cell.groundTile = scene.groundTile; };
    Duel duel(strike.attacker, strike.target, plan, scene.by, scene.on);
    for (const Bystander& other : scene.others)
        duel.Add(other.army, other.area, 2, Fighter(other.type));
    duel.Face();
    BattleState& battle = duel.game.battle;
    battle.terrainDefence = scene.terrain;
    battle.tacticalAdvantage = scene.advantage;
    battle.combinedLeadership = scene.leadership;
    battle.requiredLeadership = scene.needed;
    battle.combinedArms = scene.combinedArms;
    battle.areaOnFire = scene.fire;
    duel.game.header.visibility = scene.visibility;
    duel.game.options.cardEffect = scene.card;
    duel.game.state.strikeDrawCard = scene.drawCard;
    duel.game.state.bombardmentMode = scene.barrage;
    duel.game.grid.At(duel.A().Place()).roadTile = scene.roadTile;
    duel.game.state.targetCell = {3, 3};
    const int value = ComputeAttackStrike(duel.game).Value();
    EXPECT_EQ(duel.A().actionPoints, strike.attacker.actionPoints);
    EXPECT_EQ(duel.game.state.selectedCell, duel.A().Place());
    EXPECT_EQ(duel.game.state.targetCell, (Cell{3, 3}));
    if (after != nullptr) *after = battle;
    return value;
}

// Line infantry of 4 on line infantry: (5 + 0) x 4 = 20.
const StrikeCase kFoot[] = {
    {"plain", 20},
    {"no more than 5 points in front", 25, {.strength = 6}},
    {"3 in broken ground, -2", 13, {}, {}, {.terrain = 2}},
    {"field: -1", 19, {}, {}, {.terrain = 1}},
    {"unsteady x 0.75", 15, {.status = Unsteady}},
    {"shaken x 0.5", 10, {.status = Shaken}},
    {"attack column x 2", 40, {.formation = AttackColumn}},
    {"mixed order x 1.5", 30, {.formation = MixedOrder}},
    {"square x 0.25", 5, {.formation = Square}},
    {"open order x 1.25", 25, {.formation = OpenOrder}},
    {"march column x 0.1", 2, {.formation = MarchColumn}},
    {"no formation x 0.5", 10, {.formation = NoFormation}},
    {"elite: base 6", 24, {.quality = Elite}},
    {"veteran: base 6", 24, {.quality = Veteran}},
    {"militia: base 4", 16, {.quality = Militia}},
    {"conscripts: base 4", 16, {.quality = Conscript}},
    {"smoke: base 4", 16, {}, {}, {.roadTile = kSmoke}},
    {"fire: base 4", 16, {}, {}, {.fire = 1}},
    {"advantage 2: base 7", 28, {}, {}, {.advantage = 2}},
    {"advantage as needed", 28, {}, {}, {.advantage = 2, .leadership = 7, .needed = 7}},
    {"advantage badly led", 20, {}, {}, {.advantage = 2, .leadership = 6, .needed = 7}},
    {"(5 - 3) x 4 x 0.25", 2, {.formation = Square}, {}, {.advantage = -3}},
    {"enemy leader", 19, {}, {}, {.others = {{kBritish, 2, Leader}}}},
    {"rifles", 21, {.weapon = Rifle}},
    {"bayonets", 22, {.activity = BayonetCharge}},
    {"target routed", 22, {}, {.status = Routed}},
    {"target shaken", 21, {}, {.status = Shaken}},
    {"combined arms", 21, {}, {}, {.combinedArms = 1}},
    {"no ammunition", 19, {.ammunition = 0}},
    {"disrupted", 19, {.disrupted = 1}},
    {"no Action Points", 19, {.actionPoints = 0}},
    {"snow", 18, {}, {}, {.groundTile = 72}},
    {"the last tile of snow", 18, {}, {}, {.groundTile = 108}},
    {"earth", 20, {}, {}, {.groundTile = 109}},
    {"French card 1", 21, {}, {}, {.card = 1}},
    {"French card 2 is for barrages", 20, {}, {}, {.card = 2}},
    {"French card 3", 22, {}, {}, {.card = 3}},
    {"draw card", 19, {}, {}, {.drawCard = 1}},
    {"Austrian line has nothing of it",
     20,
     {},
     {},
     {.by = kAustrian, .on = kFrench, .drawCard = 1}},
    {"dark: halved after all", 10, {}, {}, {.visibility = 5}},
    {"visibility 6 is light", 20, {}, {}, {.visibility = 6}},
    {"(6 + 4) x 8 = 80", 50, {.formation = AttackColumn, .quality = Elite}, {}, {.advantage = 4}},
    {"2 - 1 - 4", 0, {.formation = MarchColumn, .disrupted = 1}, {}, {.terrain = 4}},
    // light infantry on its like: (6 + 0) x 4 = 24
    {"light", 24, {LightInfantry}, {LightInfantry}},
    {"3 skirmish: 1 x 1.25 x 6 = 7.5", 7, {LightInfantry, OpenOrder, 3}, {LightInfantry}},
    {"4 skirmish: 2 x 1.25 x 6", 15, {LightInfantry, OpenOrder, 4}, {LightInfantry}},
    {"5 skirmish as 4 do", 15, {LightInfantry, OpenOrder, 5}, {LightInfantry}},
    {"6 skirmish: 3 x 1.25 x 6 = 22.5", 22, {LightInfantry, OpenOrder, 6}, {LightInfantry}},
    {"light at skirmishers: no -2", 24, {LightInfantry}, {LightInfantry, OpenOrder}},
    {"line at skirmishers: (5 - 1) x 4 - 2", 14, {}, {LightInfantry, OpenOrder}},
    {"guard at skirmishers: (8 + 1) x 4 - 2", 34, {GuardInfantry}, {LightInfantry, OpenOrder}},
    // guards: (8 + 2) x 4 = 40, whatever their quality; grenadiers x 6 / 8; British line + 2
    {"guard", 40, {.type = GuardInfantry, .quality = Elite}},
    {"Prussian grenadiers",
     30,
     {.type = GuardInfantry, .quality = Militia},
     {},
     {kPrussian, kFrench}},
    {"Russian grenadiers", 30, {GuardInfantry}, {}, {kRussian, kFrench}},
    {"British guard in line", 42, {GuardInfantry}, {}, {kBritish, kFrench}},
    {"in column: 80", 50, {GuardInfantry, AttackColumn}, {}, {kBritish, kFrench}},
    // dismounted: three points of front, (4 + 0) x 3 = 12
    {"carbines", 11, {.type = LightDragoonsDismounted, .weapon = Carbine}},
    {"muskets", 12, {.type = LightDragoonsDismounted, .weapon = Musket}},
    {"carbines of dragoons", 12, {.type = DragoonsDismounted, .weapon = Carbine}},
};

// Light cavalry of 4 on line infantry: three points of front, (7 + 2) x 3 = 27.
const StrikeCase kHorse[] = {
    {"plain", 27, {LightCavalry}},
    {"column x 1.5: 40.5", 40, {LightCavalry, AttackColumn}},
    {"open order x 0.75: 20.25", 20, {LightCavalry, OpenOrder}},
    {"mixed order: no factor", 27, {LightCavalry, MixedOrder}},
    {"march column x 0.1: 2.7", 2, {LightCavalry, MarchColumn}},
    {"charge on a British line", 31, {.type = LightCavalry, .activity = Charging}},
    {"on a British column",
     29,
     {.type = LightCavalry, .activity = Charging},
     {.formation = AttackColumn}},
    {"on dragoons on foot", 29, {.type = LightCavalry, .activity = Charging}, {DragoonsDismounted}},
    {"on a Prussian line",
     29,
     {.type = LightCavalry, .activity = Charging},
     {},
     {kFrench, kPrussian}},
    {"square", 2, {LightCavalry}, {.formation = Square}},
    {"charge on a square", 4, {.type = LightCavalry, .activity = Charging}, {.formation = Square}},
    {"among skirmishers", 32, {LightCavalry}, {.formation = OpenOrder}},
    {"in open order", 20, {LightCavalry, OpenOrder}, {.formation = OpenOrder}},
    {"skirmishers in a field", 31, {LightCavalry}, {.formation = OpenOrder}, {.terrain = 1}},
    {"in a village", 25, {LightCavalry}, {.formation = OpenOrder}, {.terrain = 2}},
    {"foot in woods: -2 - 3", 22, {LightCavalry}, {}, {.terrain = 3}},
    {"no ammunition needed", 27, {.type = LightCavalry, .ammunition = 0}},
    {"snow does not hamper", 27, {LightCavalry}, {}, {.groundTile = 72}},
    {"dark does not halve", 27, {LightCavalry}, {}, {.visibility = 2}},
    {"Austrian draw card", 28, {LightCavalry}, {}, {.by = kAustrian, .on = kFrench, .drawCard = 1}},
    // on their like: (7 + 0) x 3 = 21
    {"even", 21, {LightCavalry}, {LightCavalry}},
    {"horse in woods: -3 alone", 18, {LightCavalry}, {LightCavalry}, {.terrain = 3}},
    {"counter-charged: +2 - 2", 21, {.type = LightCavalry, .activity = Charging}, {LightCavalry}},
    {"on horse that reforms: +2",
     23,
     {.type = LightCavalry, .activity = Charging},
     {.type = LightCavalry, .activity = Reforming}},
    {"on shaken horse: +2 + 1",
     24,
     {.type = LightCavalry, .activity = Charging},
     {.type = LightCavalry, .status = Shaken}},
    {"on lancers: (7 + 1) x 3 + 2", 26, {LightCavalry}, {Lancers}},
    {"lances: (8 + 4) x 3", 36, {Lancers}},
    {"lances on a square: 36 + 1 - 25", 12, {Lancers}, {.formation = Square}},
    {"(9 + 4) x 4.5 = 58; 50 - 25", 25, {HeavyCavalry, AttackColumn}, {.formation = Square}},
    {"guard horse rides squares down: (0 + 5) x 3",
     15,
     {GuardCavalry},
     {.formation = Square},
     {kBritish, kFrench}},
    {"but scatters no skirmishers",
     15,
     {GuardCavalry},
     {.formation = OpenOrder},
     {kBritish, kFrench}},
    // The French do not count theirs as horse: alone it has no support, 15 x 0.5.
    {"French guard alone", 7, {GuardCavalry}},
    {"French guard with a friend", 15, {GuardCavalry}, {}, {.others = {{kFrench, 1, Engineers}}}},
};

// 6-pounders of 4 on line infantry: (6 + 0) x 3 = 18. The gun's own area is dark in a barrage: only
// friends next door support it.
const StrikeCase kGuns[] = {
    {"6 pounders", 18, {FieldArtillery}},
    {"3 pounders", 12, {.type = FieldArtillery, .weapon = ThreePounder}},
    {"12 pounders", 24, {.type = FieldArtillery, .weapon = TwelvePounder}},
    {"no calibre", 12, {.type = FieldArtillery, .weapon = Weapon::None}},
    {"square", 22, {FieldArtillery}, {.formation = Square}},
    {"skirmishers", 17, {FieldArtillery}, {.formation = OpenOrder}},
    {"column", 20, {FieldArtillery}, {.formation = AttackColumn}},
    {"mixed order", 20, {FieldArtillery}, {.formation = MixedOrder}},
    {"no bonus on the shaken", 18, {FieldArtillery}, {.status = Shaken}},
    {"guns need no formation", 18, {FieldArtillery, NoFormation}},
    {"snow", 16, {FieldArtillery}, {}, {.groundTile = 72}},
    {"dark", 9, {FieldArtillery}, {}, {.visibility = 5}},
    {"French card 1", 19, {FieldArtillery}, {}, {.card = 1}},
    {"Austrian draw card",
     19,
     {HorseArtillery},
     {},
     {.by = kAustrian, .on = kFrench, .drawCard = 1}},
    {"barrage alone: 6 x 1.5 + 4", 13, {FieldArtillery}, {}, {.barrage = 1}},
    {"a mob: no + 4", 9, {FieldArtillery}, {.formation = NoFormation}, {.barrage = 1}},
    {"French card 2: 13 + 2", 15, {FieldArtillery}, {}, {.card = 2, .barrage = 1}},
    {"friends next door: 18 + 4",
     22,
     {FieldArtillery},
     {},
     {.barrage = 1, .others = {{kFrench, 3, LightInfantry}}}},
    {"a leader next door is a friend",
     22,
     {FieldArtillery},
     {},
     {.barrage = 1, .others = {{kFrench, 1, Leader}}}},
    {"friends in the gun's own area are none",
     13,
     {FieldArtillery},
     {},
     {.barrage = 1, .others = {{kFrench, 2, LightInfantry}}}},
};

TEST(AttackStrike, CountsTheCircumstances) {
    for (const std::span<const StrikeCase> cases :
         {std::span<const StrikeCase>(kFoot), std::span<const StrikeCase>(kHorse),
          std::span<const StrikeCase>(kGuns)}) {
        for (const StrikeCase& strike : cases)
            EXPECT_EQ(StrikeOf(strike), strike.expected) << strike.name;
    }
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
    // the British line), guard cavalry 15.
    const CardCase cases[] = {
        {kBritish, 1, LightCavalry, 27, 28},   {kBritish, 1, LineInfantry, 22, 22},
        {kBritish, 2, FieldArtillery, 18, 19}, {kBritish, 3, LineInfantry, 22, 24},
        {kAustrian, 1, LightCavalry, 27, 28},  {kAustrian, 2, LineInfantry, 20, 20},
        {kAustrian, 3, LineInfantry, 20, 21},  {kPrussian, 1, GuardCavalry, 15, 15},
        {kPrussian, 1, LightCavalry, 27, 28},  {kPrussian, 2, HorseArtillery, 18, 19},
        {kPrussian, 3, LineInfantry, 20, 21},  {kRussian, 1, LightCavalry, 27, 27},
    };
    for (const CardCase& each : cases) {
        StrikeCase strike{"", 0, {each.attacker}, {}, {each.army, kFrench}};
        EXPECT_EQ(StrikeOf(strike), each.plain) << "army " << each.army;
        strike.scene.card = each.card;
        EXPECT_EQ(StrikeOf(strike), each.withCard) << "army " << each.army << " card " << each.card;
    }
}

TEST(AttackStrike, ScalesTheTacticalAdvantageForTheReport) {
    BattleState after;
    EXPECT_EQ(StrikeOf({"", 0, {.formation = Square}, {}, {.advantage = 2}}, &after), 7);
    EXPECT_EQ(after.tacticalAdvantage, 2);  // 2 x 4 x 0.25
}

// A column of (5 + 0) x 8 = 40, halved because it stands in no slot and so without support, on
// either side of each bound of the ground that gives no way.
TEST(AttackStrike, ComesToNothingFromGroundThatGivesNoWay) {
    struct BlockCase {
        int mapNumber;
        int areaId;
        Cell from;
        Cell to;
    };
    const BlockCase cases[] = {
        {7, 21, {9, 43}, {18, 52}},  {7, 23, {39, 28}, {41, 37}}, {7, 25, {83, 31}, {92, 43}},
        {7, 29, {71, 24}, {80, 35}}, {2, 28, {21, 2}, {95, 53}},
    };
    for (const BlockCase& block : cases) {
        FieldPlan plan;
        plan.mapNumber = block.mapNumber;
        plan.columns = 12;
        plan.areaHeight = 54;
        plan.paint = [&](Cell, MapCell& cell) { cell.areaId = block.areaId; };
        plan.redraw = [&](std::vector<AreaRow>& rows) {
            for (AreaRow& row : rows)
                row.areaId = block.areaId;
        };
        const auto strikeFrom = [&](Cell cell) {
            AttackField field(plan);
            const UnitId target = field.AddAt(kBritish, {1, 50}, Soldier{}.Made());
            field.Prepare(field.AddAt(kFrench, cell, Soldier{.formation = AttackColumn}.Made()));
            field.game.battle.targetArmy = kBritish;
            field.game.battle.targetUnit = target.index;
            return ComputeAttackStrike(field.game).Value();
        };
        EXPECT_EQ(strikeFrom(block.from), 0) << block.areaId;
        EXPECT_EQ(strikeFrom(block.to), 0) << block.areaId;
        EXPECT_EQ(strikeFrom({block.from.x - 1, block.from.y}), 20) << block.areaId;
        if (block.mapNumber == 2) continue;  // no further bound
        EXPECT_EQ(strikeFrom({block.from.x, block.from.y - 1}), 20) << block.areaId;
        EXPECT_EQ(strikeFrom({block.to.x + 1, block.to.y}), 20) << block.areaId;
        EXPECT_EQ(strikeFrom({block.to.x, block.to.y + 1}), 20) << block.areaId;
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
        {LightInfantry, 15, 16, 33}, {LineInfantry, 5, 20, 27},
        {GuardInfantry, 25, 13, 69}, {LightDragoonsDismounted, 16, 19, 58},
        {Engineers, -21, 55, 55},    {DragoonsDismounted, 16, 19, 58},
        {Leader, 0, 0, 0},           {LightCavalry, 19, 18, 81},
        {Lancers, 42, 17, 190},      {HeavyCavalry, 45, 1, 209},
        {MediumCavalry, 33, 7, 133}, {CossackCavalry, 4, 36, 92},
        {GuardCavalry, 52, 0, 258},  {MortarArtillery, 0, 0, 0},
        {RocketArtillery, 0, 0, 0},  {HorseArtillery, 8, -3, 26},
        {FieldArtillery, 8, 49, 26}, {SupplyWagon, 0, 0, 0},
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
    EXPECT_EQ(EffectivenessOf(kNeverClosesUp, LineInfantry), 0);
}

}  // namespace
}  // namespace varnstride
