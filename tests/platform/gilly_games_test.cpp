// A thousand games of Gilly by a player without a plan, legal and illegal inputs alike, most of
// them to their end, and duels of the computer with itself: no phase and no order leaves a record
// broken.
#include <gtest/gtest.h>

#include "atlases/built_in.h"
#include "model/invariants.h"
#include "model/who_plays.h"
#include "platform/headless/random_player.h"

namespace varnstride {
namespace {

constexpr unsigned kGames = 1000;
constexpr unsigned kDuels = 20;
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
    int losses = 0;
    for (unsigned seed = 1; seed <= kDuels; ++seed) {
        RandomPlayer player(BuiltInAtlases(), seed);
        const Result<Done> opened = player.OpenScenario(scenario_);
        ASSERT_TRUE(opened.Ok()) << opened.Message();
        Game& game = player.InPlay();
        game.settings.computerSide = game.state.computerPlays = kComputerPlaysBoth;
        for (int step = 0; step < kMostSteps && !player.IsOver(); ++step) {
            ASSERT_NE(game.state.turnPhase, TurnPhase::Orders) << "a person is waited for";
            player.Step();
            ASSERT_EQ(BrokenInvariants(game, Overspending::ByTheComputer),
                      std::vector<std::string>{})
                << "seed " << seed << ", turn " << game.state.gameTurn;
        }
        losses += game.loss.frenchLossSP + game.loss.alliedLossSP;
    }
    EXPECT_GT(losses, static_cast<int>(kDuels)) << "the sides hardly fight";
}

INSTANTIATE_TEST_SUITE_P(, GillyGames, testing::Values("gilly_first_steps", "gilly_rearguard"),
                         [](const auto& scenario) { return std::string(scenario.param); });

}  // namespace
}  // namespace varnstride
