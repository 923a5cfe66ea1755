// The two searches that everything else rests on, in the plain way. A benchmark program that has
// this file linked in before the model runs the game's own rules over scans of the whole grid and
// of all armies.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/reference_scan.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {

UnitId UnitStandingAt(const Game& game, Cell cell) {
    return ScanForUnitAt(game, cell);
}

void ShadeReach(Game& game) {
    static std::vector<int> shade;
    shade.resize(static_cast<std::size_t>(game.grid.Width() * game.grid.Height()));
    AreaSet lit;
    const std::vector<int> reached = ScanReach(game, shade);
    benchmark::DoNotOptimize(shade.data());
    benchmark::ClobberMemory();
    if (game.grid.AreaOf(game.state.selectedCell) == 0) return;
    for (int ordinal : reached)
        lit.Add(ordinal);
    if (game.InHand().actionPoints > 0) game.state.moveCost = 1;
    if (!game.state.rangeKeepLit) game.grid.ShadePlayable();
    game.grid.Light(lit);
}

}  // namespace varnstride
