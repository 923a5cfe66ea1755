// varnstride-sim duel: the computer plays a battle against itself, once or a thousand times.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <fstream>
#include <iostream>
#include <memory>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <thread>
#include <vector>

#include "atlases/built_in.h"
#include "display/png_writer.h"
#include "files/safe_write.h"
#include "platform/headless/duel.h"
#include "sim/duel_plot.h"
#include "sim/duel_summary.h"
#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

constexpr int kBrokenInvariant = 3;
constexpr unsigned kSeedStep = 1000;  // between two games, so that their turns do not share seeds

struct Order {
    DuelPlan plan;
    int games = 1;
    int jobs = static_cast<int>(std::thread::hardware_concurrency());
    std::string csv;
    std::string plot;
};

struct Played {
    std::optional<Result<DuelResult>> result;
    double seconds = 0.0;
};

nlohmann::ordered_json ToJson(const DuelResult& duel, double seconds) {
    const int frenchLevel = duel.frenchFirst ? duel.level : 4 - duel.level;
    return {{"seed", duel.seed},
            {"turns", duel.turns},
            {"ended", duel.ended},
            {"level", {{"french", frenchLevel}, {"allied", 4 - frenchLevel}}},
            {"score", duel.score},
            {"losses",
             {{"frenchLossSP", duel.loss.frenchLossSP},
              {"alliedLossSP", duel.loss.alliedLossSP},
              {"frenchLossPoints", duel.loss.frenchLossPoints},
              {"alliedLossPoints", duel.loss.alliedLossPoints}}},
            {"morale", {{"french", duel.frenchMorale}, {"allied", duel.alliedMorale}}},
            {"wallTime", seconds}};
}

// Games side by side on several threads; whoever asks for a game waits until it is over.
class Tournament {
 public:
    explicit Tournament(const Order& order)
        : order_(order), games_(static_cast<std::size_t>(order.games)) {
        const int threads = std::min(order.jobs, order.games);
        for (int thread = 0; thread < threads; ++thread)
            threads_.emplace_back([this] { PlayGames(); });
    }

    // When a game ends the tournament early, the games not begun are left out.
    ~Tournament() { next_ = games_.size(); }
    Tournament(const Tournament&) = delete;
    Tournament& operator=(const Tournament&) = delete;

    const Played& Wait(std::size_t game) {
        std::unique_lock lock(mutex_);
        over_.wait(lock, [&] { return games_[game].result.has_value(); });
        return games_[game];
    }

 private:
    void PlayGames() {
        for (std::size_t game = next_++; game < games_.size(); game = next_++) {
            DuelPlan plan = order_.plan;
            plan.seed += static_cast<unsigned>(game) * kSeedStep;
            const auto begin = std::chrono::steady_clock::now();
            Result<DuelResult> result = PlayDuel(plan, BuiltInAtlases());
            const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
            const std::scoped_lock lock(mutex_);
            games_[game] = {std::move(result), took.count()};
            over_.notify_all();
        }
    }

    const Order& order_;
    std::vector<Played> games_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::condition_variable over_;
    std::vector<std::jthread> threads_;  // last, so that they end before what they use
};

std::vector<DuelResult> PlayAll(const Order& order) {
    Tournament tournament(order);
    std::vector<DuelResult> duels;
    for (int game = 0; game < order.games; ++game) {
        const Played& played = tournament.Wait(static_cast<std::size_t>(game));
        if (!played.result->Ok()) throw Refusal(played.result->Message());
        const DuelResult& duel = played.result->Get();
        if (!duel.broken.empty()) {
            throw Refusal("seed " + std::to_string(duel.seed) + ", " + duel.broken,
                          kBrokenInvariant);
        }
        std::cout << ToJson(duel, played.seconds).dump() << std::endl;
        duels.push_back(duel);
    }
    return duels;
}

void WriteCourse(const std::string& path, const std::vector<DuelResult>& duels) {
    std::ofstream out(path);
    PrintCourse(out, duels);
    out.close();
    if (!out) throw Refusal(path + ": cannot be written");
}

void Duel(const Order& order) {
    if (order.games > 1 && !order.plan.save.empty()) {
        throw Refusal("--save keeps the end of one game; --games asks for more");
    }
    const std::vector<DuelResult> duels = PlayAll(order);
    if (duels.size() > 1) PrintSummary(std::cerr, duels);
    if (!order.csv.empty()) WriteCourse(order.csv, duels);
    if (order.plot.empty()) return;
    const Result<Done> written = WriteSafely(order.plot, EncodePng(PlotDuels(duels)));
    if (!written.Ok()) throw Refusal(written.Message());
}

}  // namespace

void AddDuel(CLI::App& app) {
    CLI::App* command =
        app.add_subcommand("duel", "Plays a battle computer against computer to its end");
    command->footer(
        "One JSON object a game goes to standard output; levels run from 0, a major defeat, to "
        "4, a major victory. After several games a summary goes to standard error.");
    const auto order = std::make_shared<Order>();
    DuelPlan& plan = order->plan;
    command->add_option("FILE", plan.file, "A scenario (.scn) or a saved battle")->required();
    command->add_option("--seed", plan.seed, "The time of the first player turn")
        ->capture_default_str();
    command->add_option("--games", order->games, "Games, each with a seed 1000 higher")
        ->check(CLI::Range(1, 1000000))
        ->capture_default_str();
    command->add_option("--jobs", order->jobs, "Games side by side")
        ->check(CLI::Range(1, 1024))
        ->capture_default_str();
    command->add_option("--turns", plan.turns, "Stops after so many game turns")
        ->check(CLI::Range(1, 10000));
    command->add_flag("--check", plan.check,
                      "Looks at all records after every phase; exit status 3 when one is broken");
    command->add_option("--save", plan.save, "Writes the end of the one game to a file");
    command->add_option("--csv", order->csv,
                        "Writes score and losses of every game turn to a file");
    command->add_option("--plot", order->plot,
                        "Draws scores by level, and score and losses by turn, into a PNG file");
    command->callback([order] { Duel(*order); });
}

}  // namespace varnstride::sim
