// The searches of the model by plain scans, under the names by which the rules call them: a program
// that is linked with this file runs on the scans. A reach is written cell by cell first and then
// told to the grid, so that whoever asks the grid gets the same answer.
#include <vector>

#include "bench/reference_scan.h"
#include "model/census.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

// One after another the games share it; each reach rewrites it.
std::vector<int>& ShadeOf(const Game& game) {
    static std::vector<int> shade;
    shade.resize(static_cast<std::size_t>(game.grid.Width() * game.grid.Height()));
    return shade;
}

}  // namespace

void ShadeReach(Game& game) {
    if (game.grid.AreaOf(game.state.selectedCell) == 0) return;
    AreaSet lit;
    for (int ordinal : ScanReach(game, ShadeOf(game)))
        lit.Add(ordinal);
    if (game.InHand().actionPoints > 0) game.state.moveCost = 1;
    if (!game.state.rangeKeepLit) game.grid.ShadePlayable();
    game.grid.Light(lit);
}

void ShadeReachWith(Game& game, int actionPoints) {
    Unit& unit = game.InHand();
    const int held = unit.actionPoints;
    unit.actionPoints = actionPoints;
    ShadeReach(game);
    unit.actionPoints = held;
}

UnitId UnitStandingAt(const Game& game, Cell cell) {
    return ScanForUnitAt(game, cell);
}

void CensusEnemy(Game& game) {
    const int army = ScanCensusEnemy(game, game.census);
    if (army >= 0 && !game.battle.attackRunning) game.battle.targetArmy = army;
}

void CensusOwnAtTarget(Game& game) {
    ScanCensusOwn(game, game.census);
}

void FindAdvanceCell(Game& game) {
    game.state.advanceResultCell = ScanAdvanceCell(game, ShadeOf(game));
    game.state.selectedCell = game.state.targetCell = game.state.advanceResultCell;
}

}  // namespace varnstride
