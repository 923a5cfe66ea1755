// How long a whole battle pass takes on the largest battlefield. Linked twice: with the model as
// it is, and with bench/scanned_searches.cpp in its place.
#include <benchmark/benchmark.h>

#include "battle/battle_pass.h"
#include "platform/headless/state_hash.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

// The two programs must have played the same battle; a counter holds 53 bits.
double FingerprintOf(const Game& game) {
    return static_cast<double>(HashOf(game) >> 11);
}

void BattlePass(benchmark::State& state) {
    const auto field = MakeLargeMelee();
    Game game = field->game;
    for (auto _ : state) {
        state.PauseTiming();
        game = field->game;
        state.ResumeTiming();
        RunBattlePass(game);
    }
    state.counters["fingerprint"] = FingerprintOf(game);
}

// tools/bench sets each TURN/scan beside TURN/model.
BENCHMARK(BattlePass)->Name("Battle pass/" VARNSTRIDE_VARIANT)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace varnstride
