// A thousand games of Gilly by a player without a plan, legal and illegal inputs alike, most of
// them to their end, and duels of the computer with itself: no phase and no order leaves a record
// broken.
#include <gtest/gtest.h>

#include <cstdio>

#include "atlases/built_in.h"
#include "model/invariants.h"
#include "platform/headless/duel.h"
#include "platform/headless/random_player.h"

namespace varnstride {
namespace {

constexpr unsigned kGames = 1000;
constexpr unsigned kDuels = 300;
constexpr int kMostSteps = 1500;
constexpr int kStepsBetweenLooks = 10;

class GillyGames : public testing::TestWithParam<const char*> {
 protected:
    std::string scenario_ = std::string(VARNSTRIDE_SCENARIOS) + "/" + GetParam() + ".scn";
};

TEST_P(GillyGames, KeepTheRecordsWhole) {
    unsigned ended = 0;
    for (unsigned seed = 1; seed <= kGames / 2; ++seed) {
        RandomPlayer player(BuiltInAtlases(), seed);
        const Result<Done> opened = player.OpenScenario(scenario_);
        ASSERT_TRUE(opened.Ok()) << opened.Message();
        for (int step = 0; step < kMostSteps && !player.IsOver(); ++step) {
            const bool phase = player.InPlay().state.turnPhase != TurnPhase::Orders;
            player.Step();
            if (!phase && step % kStepsBetweenLooks != 0) continue;
            ASSERT_EQ(BrokenInvariants(player.InPlay(), Overspending::ByTheComputer),
                      std::vector<std::string>{})
                << "seed " << seed << ", repeated by varnstride-sim run with\n"
                << player.Script();
        }
        if (player.InPlay().header.gameEnded == 1) ++ended;
    }
    EXPECT_GT(ended, kGames / 4) << "few games come to their end";
}

TEST_P(GillyGames, OfTheComputerWithItselfKeepTheRecordsWhole) {
    DuelPlan plan;
    plan.file = scenario_;
    plan.check = true;
    int losses = 0;
    for (plan.seed = 1; plan.seed <= kDuels; ++plan.seed) {
        const Result<DuelResult> played = PlayDuel(plan, BuiltInAtlases());
        ASSERT_TRUE(played.Ok()) << played.Message();
        const DuelResult& duel = played.Get();
        ASSERT_EQ(duel.broken, "") << "repeated by varnstride-sim duel --seed " << plan.seed;
        ASSERT_TRUE(duel.ended) << "seed " << plan.seed;
        losses += duel.loss.frenchLossSP + duel.loss.alliedLossSP;
    }
    EXPECT_GT(losses, static_cast<int>(kDuels)) << "the sides hardly fight";
}

// A duel cut off and saved is a battle like any other, which the computer can play on.
TEST_P(GillyGames, OfTheComputerGoOnFromAFile) {
    const std::string saved = testing::TempDir() + GetParam() + std::string("_duel.cmb");
    DuelPlan plan;
    plan.file = scenario_;
    plan.turns = 3;
    plan.save = saved;
    const auto cut = PlayDuel(plan, BuiltInAtlases());
    ASSERT_TRUE(cut.Ok()) << cut.Message();
    EXPECT_FALSE(cut.Get().ended);
    EXPECT_EQ(cut.Get().turns, 3);
    plan = {};
    plan.file = saved;
    plan.check = true;
    const auto rest = PlayDuel(plan, BuiltInAtlases());
    ASSERT_TRUE(rest.Ok()) << rest.Message();
    ASSERT_TRUE(rest.Get().ended) << rest.Get().broken;
    EXPECT_EQ(rest.Get().course.front().turn, 4);
    std::remove(saved.c_str());
    EXPECT_FALSE(PlayDuel(plan, BuiltInAtlases()).Ok()) << "the file is gone";
}

INSTANTIATE_TEST_SUITE_P(, GillyGames, testing::Values("gilly_first_steps", "gilly_rearguard"),
                         [](const auto& scenario) { return std::string(scenario.param); });

}  // namespace
}  // namespace varnstride
