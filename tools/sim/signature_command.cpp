// varnstride-sim signature: plays a fixed set of battles, orders and answers drawn from fixed
// seeds, and boils all their positions down to one number. It changes when any rule does.
#include <algorithm>
#include <iomanip>
#include <iostream>
#include <memory>
#include <vector>

#include "atlases/built_in.h"
#include "platform/headless/random_player.h"
#include "platform/headless/state_hash.h"
#include "sim/data_folder.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kFirstSeed = 1815;
constexpr unsigned kGames = 3;  // of each scenario
constexpr int kSteps = 600;     // inputs and passes of a game

std::vector<fs::path> ScenariosOf(const fs::path& folder) {
    std::vector<fs::path> scenarios;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".scn") scenarios.push_back(entry.path());
    }
    if (scenarios.empty()) throw Refusal(folder.string() + ": no scenarios found");
    std::sort(scenarios.begin(), scenarios.end());
    return scenarios;
}

std::uint64_t PlayOn(const fs::path& scenario, unsigned seed, std::uint64_t hash) {
    RandomPlayer player(BuiltInAtlases(), seed);
    const Result<Done> opened = player.OpenScenario(scenario.string());
    if (!opened.Ok()) throw Refusal(opened.Message());
    for (int step = 0; step < kSteps && !player.IsOver(); ++step) {
        const TurnPhase before = player.InPlay().state.turnPhase;
        player.Step();
        if (before != player.InPlay().state.turnPhase) hash = HashOf(player.InPlay(), hash);
    }
    return HashOf(player.InPlay(), hash);
}

void Print(const fs::path& folder) {
    std::uint64_t hash = kHashStart;
    for (const fs::path& scenario : ScenariosOf(folder)) {
        for (unsigned game = 0; game < kGames; ++game) {
            hash = PlayOn(scenario, kFirstSeed + game, hash);
        }
    }
    std::cout << std::hex << std::setw(16) << std::setfill('0') << hash << '\n';
}

}  // namespace

void AddSignature(CLI::App& app) {
    CLI::App* command = app.add_subcommand(
        "signature", "Plays a fixed set of battles and prints one number for all of them");
    const auto folder = std::make_shared<fs::path>();
    command->add_option("--scenarios", *folder,
                        "The folder of the scenarios; by default the game's own");
    command->callback([folder] { Print(folder->empty() ? DataFolder() / "Scenarios" : *folder); });
}

}  // namespace varnstride::sim
