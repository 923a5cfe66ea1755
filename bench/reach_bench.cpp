// How long the searches take that run on every click, at every move and hundreds of times in a
// computer's turn, each beside the plain scan that gives the same answer.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/reference_scan.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

// A slot of each side in turn, the areas out of order, so that no answer is twice the same.
class Walk {
 public:
    Cell Next(const Game& game, Side side) {
        step_ = (step_ + 61) % (game.atlas->AreaCount() * kSlotsPerSide);
        const AreaSlots slots = game.atlas->Row(step_ / kSlotsPerSide + 1).Slots();
        return SlotOf(slots, side, step_ % kSlotsPerSide);
    }

 private:
    int step_ = 0;
};

void ModelReach(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    Walk walk;
    for (auto _ : state) {
        field->game.state.selectedCell = walk.Next(field->game, Side::French);
        ShadeReach(field->game);
        benchmark::DoNotOptimize(field->game.grid);
    }
}

void ScannedReach(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    const Grid& grid = field->game.grid;
    std::vector<int> shade(static_cast<std::size_t>(grid.Width() * grid.Height()));
    Walk walk;
    for (auto _ : state) {
        field->game.state.selectedCell = walk.Next(field->game, Side::French);
        ScanReach(field->game, shade);
        benchmark::DoNotOptimize(shade.data());
        benchmark::ClobberMemory();
    }
}

void ModelCensus(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    Walk walk;
    for (auto _ : state) {
        field->game.state.selectedCell = walk.Next(field->game, Side::French);
        CensusEnemy(field->game);
        benchmark::DoNotOptimize(field->game.census);
    }
}

void ScannedCensus(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    Walk walk;
    for (auto _ : state) {
        field->game.state.selectedCell = walk.Next(field->game, Side::French);
        ScanCensusEnemy(field->game, field->game.census);
        benchmark::DoNotOptimize(field->game.census);
    }
}

template <int (*Find)(const Game&, Cell)>
void EnemyInSlot(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    SelectAreaByOrdinal(field->game, 1);
    Walk walk;
    for (auto _ : state) {
        benchmark::DoNotOptimize(Find(field->game, walk.Next(field->game, Side::Allied)));
    }
}

// Reach and search together: what a unit of the computer does to move.
void ModelAdvance(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    Walk walk;
    for (auto _ : state) {
        field->game.state.selectedCell = walk.Next(field->game, Side::French);
        ShadeReach(field->game);
        FindAdvanceCell(field->game);
        benchmark::DoNotOptimize(field->game.state.advanceResultCell);
    }
}

void ScannedAdvance(benchmark::State& state) {
    const auto field = MakeLargeBattle();
    const Grid& grid = field->game.grid;
    std::vector<int> shade(static_cast<std::size_t>(grid.Width() * grid.Height()));
    Walk walk;
    for (auto _ : state) {
        field->game.state.selectedCell = walk.Next(field->game, Side::French);
        ScanReach(field->game, shade);
        benchmark::DoNotOptimize(ScanAdvanceCell(field->game, shade));
    }
}

// tools/bench sets each SEARCH/scan beside SEARCH/model.
BENCHMARK(ModelReach)->Name("ShadeReach/model");
BENCHMARK(ScannedReach)->Name("ShadeReach/scan");
BENCHMARK(ModelCensus)->Name("CensusEnemy/model");
BENCHMARK(ScannedCensus)->Name("CensusEnemy/scan");
BENCHMARK(EnemyInSlot<FindEnemyInSlot>)->Name("FindEnemyInSlot/model");
BENCHMARK(EnemyInSlot<ScanForEnemyInSlot>)->Name("FindEnemyInSlot/scan");
BENCHMARK(ModelAdvance)->Name("ShadeReach + FindAdvanceCell/model");
BENCHMARK(ScannedAdvance)->Name("ShadeReach + FindAdvanceCell/scan");

}  // namespace
}  // namespace varnstride
