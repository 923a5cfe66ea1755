// Games of a player without a plan: no rule leaves a record broken, and a script repeats the game.
#include <gtest/gtest.h>

#include <sstream>

#include "model/invariants.h"
#include "platform/headless/random_player.h"
#include "platform/headless/script_run.h"
#include "platform/headless/state_dump.h"
#include "platform/tiny_battle.h"

namespace varnstride {
namespace {

constexpr int kSteps = 400;

TEST(RandomGames, KeepTheRecordsWhole) {
    const TinyBattle battle;
    int turns = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        RandomPlayer player(battle.catalogue, seed);
        ASSERT_TRUE(player.OpenScenario(battle.scenario).Ok());
        for (int step = 0; step < kSteps && !player.IsOver(); ++step) {
            player.Step();
            ASSERT_EQ(BrokenInvariants(player.InPlay(), Overspending::ByTheComputer),
                      std::vector<std::string>{})
                << "seed " << seed << ", repeated by varnstride-sim run with\n"
                << player.Script();
        }
        turns += player.InPlay().state.gameTurn;
    }
    EXPECT_GT(turns, 60) << "the player hardly ever ends his turn";
}

TEST(RandomGames, AreRepeatedByTheirScript) {
    const TinyBattle battle;
    for (unsigned seed = 1; seed <= 10; ++seed) {
        RandomPlayer player(battle.catalogue, seed);
        ASSERT_TRUE(player.OpenScenario(battle.scenario).Ok());
        const std::vector<MapCell> atLoad = WholeCells(player.InPlay().grid);
        for (int step = 0; step < kSteps && !player.IsOver(); ++step)
            player.Step();
        const std::string events = battle.Play(player.Script() + "dump\n");
        const std::string state = StateEvent(player.InPlay(), atLoad).dump();
        EXPECT_NE(events.find(state), std::string::npos) << "seed " << seed;
    }
}

}  // namespace
}  // namespace varnstride
