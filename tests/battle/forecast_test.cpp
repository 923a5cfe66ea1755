// The exact distribution of an attack: by hand where few dice fall, and against attacks that have
// been played. VARNSTRIDE_LONG_DUELS=1 plays five times as many.
#include "battle/forecast.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <numeric>

#include "battle/attack_field.h"
#include "model/dice.h"
#include "model/dice_paths.h"

namespace varnstride {
namespace {

using namespace words;

constexpr Soldier kRouted{.formation = NoFormation, .status = Routed, .morale = 8};

AttackForecast ForecastOf(Duel& duel) {
    const Result<AttackForecast> result =
        ForecastAttack(duel.game, {.attacker = duel.attackerId, .target = duel.targetId});
    EXPECT_TRUE(result.Ok());
    return result.Get();
}

double SumOf(const std::vector<Chance<AttackOutcome>>& outcomes) {
    return std::accumulate(
        outcomes.begin(), outcomes.end(), 0.0,
        [](double sum, const Chance<AttackOutcome>& outcome) { return sum + outcome.probability; });
}

double ChanceThat(const AttackForecast& forecast, bool (*holds)(const AttackOutcome&)) {
    double sum = 0.0;
    for (const Chance<AttackOutcome>& outcome : forecast.outcomes) {
        if (holds(outcome.what)) sum += outcome.probability;
    }
    return sum;
}

TEST(DicePaths, WalkEveryThrowOnce) {
    DicePaths paths;
    std::map<std::vector<int>, double> walked;
    do {
        std::vector<int> thrown{paths.Throw(3)};
        if (thrown[0] == 1) thrown.push_back(paths.Throw(2));
        EXPECT_TRUE(walked.emplace(thrown, paths.Probability()).second);
    } while (paths.Advance());
    // 32768 numbers: 10923 end in 0 and in 1 of three, 10922 in 2; half of them in 1 of two.
    const std::map<std::vector<int>, double> expected = {{{0}, 10923 / 32768.0},
                                                         {{1, 0}, 10923 / 65536.0},
                                                         {{1, 1}, 10923 / 65536.0},
                                                         {{2}, 10922 / 32768.0}};
    EXPECT_EQ(walked, expected);
}

TEST(DicePaths, ThrowManyDiceAtOnce) {
    const std::vector<double> chances = CountChances(3, 8, 1);
    const std::vector<double> expected = {343 / 512.0, 147 / 512.0, 21 / 512.0, 1 / 512.0};
    ASSERT_EQ(chances.size(), expected.size());
    for (std::size_t ones = 0; ones < expected.size(); ++ones) {
        EXPECT_DOUBLE_EQ(chances[ones], expected[ones]);
    }
    EXPECT_EQ(CountChances(0, 6, 1), std::vector<double>{1.0});
}

// Two dice of eight on the target, which leaves 49 : 14 : 1 of 64 for a loss of 0, 1 and 2. The
// guns draw no answer. 24 / 4 = 6, halved 3.
TEST(Forecast, OfGunsByHand) {
    Duel duel({.type = FieldArtillery, .strength = 3, .weapon = TwelvePounder}, {.strength = 3});
    const AttackForecast forecast = ForecastOf(duel);
    const SideOutcome unhurt{0, 24, Ordered};
    const std::vector<std::pair<AttackOutcome, double>> expected = {
        {{{0, 21, Ordered}, unhurt}, 49 / 64.0},
        {{{1, 20, Ordered}, unhurt}, 14 / 64.0},
        {{{2, 19, Unsteady}, unhurt}, 1 / 64.0},
    };
    ASSERT_EQ(forecast.outcomes.size(), expected.size());
    for (std::size_t line = 0; line < expected.size(); ++line) {
        EXPECT_TRUE(forecast.outcomes[line].what == expected[line].first) << line;
        EXPECT_NEAR(forecast.outcomes[line].probability, expected[line].second, 1e-12) << line;
    }
    EXPECT_NEAR(forecast.goesIn, 1.0, 1e-12);
    ASSERT_EQ(forecast.attacks.size(), 1U);
    EXPECT_EQ(forecast.attacks[0].what.strike, 24);
    EXPECT_TRUE(forecast.answers.empty());
}

// A routed unit that runs loses a point with one throw in six, here 5462 of 32768.
// 4 x 2 + 2 = 10, / 3 = 3, halved 1: no dice.
TEST(Forecast, OfARunByHand) {
    Duel duel({.formation = NoFormation, .quality = Militia}, kRouted);
    const AttackForecast forecast = ForecastOf(duel);
    ASSERT_EQ(forecast.outcomes.size(), 2U);
    EXPECT_EQ(forecast.outcomes[0].what.target.morale, 7);
    EXPECT_EQ(forecast.outcomes[1].what.target.strengthLost, 1);
    EXPECT_EQ(forecast.outcomes[1].what.target.morale, 6);
    EXPECT_NEAR(forecast.outcomes[1].probability, 5462 / 32768.0, 1e-12);
    ASSERT_EQ(forecast.dispatches.size(), 1U);
    EXPECT_EQ(forecast.dispatches[0].what, 212);
}

TEST(Forecast, LeavesTheGameAlone) {
    Duel duel({}, {});
    const std::uint32_t dice = duel.game.generator.State();
    ForecastOf(duel);
    EXPECT_EQ(duel.game.generator.State(), dice);
    EXPECT_EQ(duel.game.generator.Paths(), nullptr);
    EXPECT_EQ(duel.T().morale, 24);
    EXPECT_EQ(duel.A().ammunition, 8);
    EXPECT_EQ(duel.game.state.selectedCell, kNoCell);
    EXPECT_TRUE(duel.witness.Heard().empty());
    EXPECT_TRUE(duel.witness.reports.empty());
}

TEST(Forecast, SaysWhyThereIsNone) {
    AttackField field;
    const UnitId attacker = field.Add(kFrench, field.kMiddle, 1, Fighter(LineInfantry));
    const UnitId friendly = field.Add(kFrench, field.kMiddle, 2, Fighter(LineInfantry));
    const UnitId away = field.Add(kBritish, field.kEast, 1, Fighter(LineInfantry));
    struct Objection {
        AttackPlan plan;
        const char* message;
    };
    const Objection cases[] = {
        {{{kFrench, 9}, away}, "French unit 9 is not on the map"},
        {{attacker, {kBritish, 600}}, "there is no such unit: British unit 600"},
        {{{9, 1}, away}, "there is no such unit: army 9 unit 1"},
        {{attacker, friendly}, "French unit 1 and French unit 2 are on the same side"},
        {{attacker, away}, "French unit 1 and British unit 1 do not stand in the same area"},
        {{attacker, away, true}, "French unit 1 has no guns to bombard with"},
    };
    for (const Objection& objection : cases) {
        const Result<AttackForecast> result = ForecastAttack(field.game, objection.plan);
        ASSERT_FALSE(result.Ok()) << objection.message;
        EXPECT_EQ(result.Message(), objection.message);
    }
}

struct Bystander {
    int army;
    int area;
    int slot;
    Soldier soldier;
};

// One attack out of the life of an army; in a barrage the guns stand one area west.
struct Encounter {
    const char* name;
    Soldier attacker;
    Soldier target;
    std::vector<Bystander> others = {};
    bool bombard = false;
    std::optional<TacticsPlayed> tactics = {};

    AttackPlan SetUp(AttackField& field) const {
        field.game.options.smokeOn = 1;
        field.game.time.windSpeed = 8;
        for (const Bystander& other : others)
            field.Add(other.army, other.area, other.slot, other.soldier.Made());
        const int from = bombard ? AttackField::kWest : AttackField::kMiddle;
        return {.attacker = field.Add(kFrench, from, 1, attacker.Made()),
                .target = field.Add(kBritish, AttackField::kMiddle, 1, target.Made()),
                .bombard = bombard,
                .tactics = tactics};
    }
};

constexpr Soldier kWavering{.status = Shaken, .morale = 11};

const std::vector<Encounter> kEncounters = {
    {"columns on a line", {.formation = AttackColumn}, {}},
    {"volleys", {LightInfantry}, {GuardInfantry}},
    {"cuirassiers on veterans who may form square", {HeavyCavalry}, {.quality = Veteran}},
    {"shaken hussars against lancers, both tested",
     {.type = LightCavalry, .status = Unsteady, .quality = Militia, .morale = 17},
     {.type = Lancers, .status = Shaken, .morale = 13}},
    {"a shaken target that may crumble and run", {GuardInfantry}, kWavering},
    {"three units that may run",
     {GuardInfantry},
     kWavering,
     {{kBritish, 2, 2, kWavering}, {kBritish, 2, 3, kWavering}}},
    {"the last man of a routed unit",
     {LightCavalry},
     {LightInfantry, NoFormation, 1, Routed, Experienced, 6}},
    {"canister on a square",
     {.type = HorseArtillery, .weapon = TwelvePounder},
     {.formation = Square}},
    {"a barrage", {FieldArtillery}, {}, {{kFrench, 2, 1, {LightInfantry}}}, true},
    {"a bayonet charge that costs the attacker dear",
     {.strength = 1, .activity = BayonetCharge},
     {.type = GuardInfantry, .strength = 6, .quality = Elite}},
    {"a flank attack", {}, {}, {{kFrench, 2, 2, {}}}, false, TacticsPlayed{4, 3}},
    {"a surrender", {}, {.strength = 6, .status = Routed, .morale = 2}, {{kFrench, 3, 1, {}}}},
    {"hit hard by many dice",
     {.type = GuardInfantry, .formation = AttackColumn, .strength = 6},
     {.type = Engineers, .strength = 2}},
};

// Plays the same attack again and again: only what an attack touches is put back in between.
class Rehearsal {
 public:
    explicit Rehearsal(Game& game) : played_(game), units_(game.units) {
        std::vector<ArmyUnits> all = std::exchange(game.units, {});
        start_ = std::make_unique<Game>(game);
        game.units = std::move(all);
    }

    void PutBack() {
        const Generator dice = played_.generator;
        std::vector<ArmyUnits> all = std::exchange(played_.units, {});
        played_ = *start_;
        played_.units = std::move(all);
        played_.generator = dice;
        constexpr int kMostUnits = 6;  // of an army, in these tests
        for (int army : {kFrench, kBritish}) {
            for (int index = 1; index <= kMostUnits; ++index) {
                played_.At({army, index}) =
                    units_[static_cast<std::size_t>(army)][static_cast<std::size_t>(index)];
            }
        }
    }

 private:
    Game& played_;
    std::vector<ArmyUnits> units_;
    std::unique_ptr<Game> start_;
};

std::map<AttackOutcome, int> PlayMany(AttackField& field, const AttackPlan& plan, int plays) {
    SilentPerson nobody;
    field.game.person = &nobody;
    const Unit attacker = field.game.At(plan.attacker);
    const Unit target = field.game.At(plan.target);
    field.game.generator.Seed(20260615);
    Rehearsal rehearsal(field.game);
    std::map<AttackOutcome, int> counts;
    for (int play = 0; play < plays; ++play) {
        rehearsal.PutBack();
        SetUpAttack(field.game, plan);
        ResolveAttackOn(field.game, plan.target);
        const Unit& attackerAfter = field.game.At(plan.attacker);
        const Unit& targetAfter = field.game.At(plan.target);
        ++counts[{{target.strength - targetAfter.strength, targetAfter.morale, targetAfter.status},
                  {attacker.strength - attackerAfter.strength, attackerAfter.morale,
                   attackerAfter.status}}];
    }
    return counts;
}

int PlaysAnEncounter() {
    const char* longRun = std::getenv("VARNSTRIDE_LONG_DUELS");
    return longRun != nullptr && std::string(longRun) == "1" ? 100000 : 20000;
}

// Every outcome is as frequent as foretold, to five standard deviations, and nothing happens that
// was not foretold.
TEST(Forecast, AgreesWithPlay) {
    const int plays = PlaysAnEncounter();
    for (const Encounter& encounter : kEncounters) {
        SCOPED_TRACE(encounter.name);
        AttackField field;
        const AttackPlan plan = encounter.SetUp(field);
        const Result<AttackForecast> result = ForecastAttack(field.game, plan);
        ASSERT_TRUE(result.Ok()) << result.Message();
        EXPECT_NEAR(SumOf(result.Get().outcomes), 1.0, 1e-9);
        std::map<AttackOutcome, int> counts = PlayMany(field, plan, plays);
        for (const auto& [outcome, probability] : result.Get().outcomes) {
            const double expected = probability * plays;
            const double spread = std::sqrt(expected * (1.0 - probability));
            const auto found = counts.find(outcome);
            const int count = found == counts.end() ? 0 : found->second;
            EXPECT_NEAR(count, expected, 5.0 * spread + 1.0)
                << "target lost " << outcome.target.strengthLost << " morale "
                << outcome.target.morale << ", attacker lost " << outcome.attacker.strengthLost
                << " morale " << outcome.attacker.morale;
            if (found != counts.end()) counts.erase(found);
        }
        EXPECT_TRUE(counts.empty()) << counts.size() << " outcomes were not foretold";
    }
}

// What the encounters are there for does happen in them.
TEST(Forecast, CoversTheTurnsOfFortune) {
    std::map<std::string, AttackForecast> forecasts;
    for (const Encounter& encounter : kEncounters) {
        AttackField field;
        const AttackPlan plan = encounter.SetUp(field);
        forecasts.emplace(encounter.name, ForecastAttack(field.game, plan).Get());
    }
    const auto targetDies = [](const AttackOutcome& outcome) {
        return outcome.target.status == Destroyed;
    };
    const auto attackerDies = [](const AttackOutcome& outcome) {
        return outcome.attacker.status == Destroyed;
    };
    EXPECT_GT(ChanceThat(forecasts.at("the last man of a routed unit"), targetDies), 0.1);
    EXPECT_GT(ChanceThat(forecasts.at("a surrender"), targetDies), 0.9);
    EXPECT_GT(
        ChanceThat(forecasts.at("a bayonet charge that costs the attacker dear"), attackerDies),
        0.5);
    // (5 + 2) x 4: the two have the leadership for it
    EXPECT_EQ(forecasts.at("a flank attack").attacks.at(0).what.strike, 28);
    const AttackForecast& square = forecasts.at("cuirassiers on veterans who may form square");
    EXPECT_NEAR(square.attacks.at(0).probability, square.attacks.at(1).probability, 1e-9);
    const double hussars = forecasts.at("shaken hussars against lancers, both tested").goesIn;
    EXPECT_GT(hussars, 0.2);
    EXPECT_LT(hussars, 0.9);
}

}  // namespace
}  // namespace varnstride
