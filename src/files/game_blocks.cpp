#include <algorithm>

#include "files/battle_file.h"

namespace varnstride {
namespace {

// Units that the older layout left as they stood may have stood on a larger map.
void RemoveUnitsOffTheGrid(Game& game) {
    for (ArmyUnits& army : game.units) {
        for (Unit& unit : army) {
            if (!game.grid.Holds(unit.Place())) unit = {};
        }
    }
}

// The older layout holds fewer armies and records; what it does not hold stays as it stands.
void PutOlderUnits(const BattleFile& file, Game& game) {
    for (int army = 0; army < file.armyCount; ++army) {
        for (int index = 1; index < file.unitsPerArmy; ++index) {
            const Unit& unit =
                file.units[static_cast<std::size_t>(army)][static_cast<std::size_t>(index)];
            if (unit.strength > 0) game.At({army, index}) = unit;
        }
    }
}

std::vector<MapCell> CellsOf(const Grid& grid) {
    std::vector<MapCell> cells;
    cells.reserve(static_cast<std::size_t>(grid.Width()) * static_cast<std::size_t>(grid.Height()));
    for (int y = 0; y < grid.Height(); ++y) {
        for (int x = 0; x < grid.Width(); ++x)
            cells.push_back(grid.Whole({x, y}));
    }
    return cells;
}

}  // namespace

void PutIntoGame(const BattleFile& file, FileKind kind, Game& game) {
    game.atlas = game.atlases->Find(file.header.mapNumber);
    game.grid = Grid(file.mapWidth, file.mapHeight, file.cells, *game.atlas);
    game.labels = file.labels;
    game.sizeReserved = file.sizeReserved;
    game.countReserved = file.countReserved;
    game.header = file.header;
    game.time = file.time;
    game.loss = file.loss;
    std::copy_n(file.armies.begin(), file.armyCount, game.armies.begin());
    game.briefings = file.briefings;
    if (file.IsOlderLayout()) {
        PutOlderUnits(file, game);
        RemoveUnitsOffTheGrid(game);
    } else {
        game.units = file.units;
    }
    game.turnLog = file.turnLog;
    if (kind != FileKind::Scenario) game.options = file.options;
}

BattleFile TakeFromGame(const Game& game) {
    BattleFile file;
    file.mapWidth = game.grid.Width();
    file.mapHeight = game.grid.Height();
    file.sizeReserved = game.sizeReserved;
    file.cells = CellsOf(game.grid);
    file.labels = game.labels;
    file.countReserved = game.countReserved;
    file.header = game.header;
    file.time = game.time;
    file.loss = game.loss;
    file.armies = game.armies;
    file.briefings = game.briefings;
    file.units = game.units;
    file.turnLog = game.turnLog;
    file.options = game.options;
    return file;
}

}  // namespace varnstride
