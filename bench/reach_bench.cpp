// How long the searches take that run on every click, at every move and hundreds of times in a
// computer's turn, each beside the plain scan that gives the same answer.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

#include "bench/reference_scan.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"
#include "support/field.h"

namespace varnstride {
namespace {

constexpr int kColumns = 15;
constexpr int kRows = 7;
constexpr int kAreas = kColumns * kRows;  // as many as the largest battlefield has
constexpr int kAreaHeight = 13;           // 121 x 91 cells in all
constexpr int kLinksPerArea = 32;

// In the proportions of the battlefields.
struct LinkKind {
    int share;
    FirstStep firstStep;
    SecondStep secondStep;
};
constexpr LinkKind kLinkKinds[] = {
    {10, FirstStep::Open, SecondStep::None},      {3, FirstStep::FootOnly, SecondStep::None},
    {2, FirstStep::FootOrRoad, SecondStep::None}, {12, FirstStep::None, SecondStep::Open},
    {5, FirstStep::None, SecondStep::RoadOnly},
};

std::vector<AreaLink> Links(std::mt19937& chance) {
    std::vector<AreaLink> links;
    std::vector<int> targets(kAreas);
    std::iota(targets.begin(), targets.end(), 1);
    for (int from = 1; from <= kAreas; ++from) {
        std::shuffle(targets.begin(), targets.end(), chance);
        auto target = targets.begin();
        for (const LinkKind& kind : kLinkKinds) {
            for (int link = 0; link < kind.share; ++link) {
                links.push_back({from, *target++, kind.firstStep, kind.secondStep, 0, false});
            }
        }
    }
    return links;
}

// Every record of both armies is used: every slot is held, by records out of order, and the rest
// have yet to come.
void FillArmies(std::mt19937& chance, Field& field) {
    for (int army : {kFrench, kPrussian}) {
        std::vector<Cell> slots;
        for (int ordinal = 1; ordinal <= kAreas; ++ordinal) {
            for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
                slots.push_back(field.SlotCell(SideOf(army), ordinal, slot));
            }
        }
        slots.resize(kUnitsPerArmy - 1, kNoCell);
        std::shuffle(slots.begin(), slots.end(), chance);
        for (Cell slot : slots) {
            Unit unit = MakeUnit(UnitType::HorseArtillery);
            unit.actionPoints = 2;
            if (slot == kNoCell) unit.arrivalTurn = field.game.state.gameTurn + 1;
            field.AddAt(army, slot, unit);
        }
    }
}

std::unique_ptr<Field> MakeLargeBattle() {
    std::mt19937 chance(1815);
    FieldPlan plan;
    plan.columns = kColumns;
    plan.rows = kRows;
    plan.areaHeight = kAreaHeight;
    plan.links = Links(chance);
    static_assert(kLinksPerArea == 10 + 3 + 2 + 12 + 5);
    auto field = std::make_unique<Field>(plan);
    FillArmies(chance, *field);
    field->game.state.currentUnit = 1;
    field->game.state.roadMover = true;
    field->game.turnLog.advanceDirection = 3;
    return field;
}

// A slot of each side in turn, the areas out of order, so that no answer is twice the same.
class Walk {
 public:
    Cell Next(const Game& game, Side side) {
        step_ = (step_ + 61) % (kAreas * kSlotsPerSide);
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
