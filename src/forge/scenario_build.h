// A scenario on its way from source to file: what the readers of the sections have filled in so
// far. Only the forge's scenario files use it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "files/battle_file.h"
#include "forge/source_errors.h"
#include "model/atlas.h"

namespace varnstride {

constexpr int kMostOfGrid = 250;      // columns or rows
constexpr int kBorderToBeDrawn = -1;  // borderTile of a cell while nobody has given one

// How much is asked of a scenario beyond what every file must keep.
enum class ScenarioRules {
    Strict,  // all that a scenario written by hand should keep
    Loose,   // nothing: a file from elsewhere, taken as it is
};

// A unit and the line that it was written on.
struct UnitLine {
    UnitId id;
    int line = 0;
    bool isSound = true;  // all of it could be read
};

struct ScenarioBuild {
    explicit ScenarioBuild(SourceErrors& sourceErrors) : errors(sourceErrors) {}

    BattleFile file;
    ScenarioRules rules = ScenarioRules::Strict;
    const Atlas* atlas = nullptr;  // of the map; nothing while the map is not known
    int firstLine = 0;             // that names the army which opens every turn
    std::vector<UnitLine> unitLines;
    SourceErrors& errors;

    // Makes a grid of empty cells; nothing happens with a size that no file can have.
    void SetSize(int width, int height);
    bool HasGrid() const { return !file.cells.empty(); }
    // Without a readable grid nothing is known to be off it.
    bool Holds(Cell cell) const {
        return !HasGrid() ||
               (cell.x >= 0 && cell.x < file.mapWidth && cell.y >= 0 && cell.y < file.mapHeight);
    }
    // Of a cell that the grid holds.
    MapCell& At(Cell cell) {
        return file
            .cells[static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(file.mapWidth) +
                   static_cast<std::size_t>(cell.x)];
    }

    // A cell written "x,y" on the grid; anything else is an error and gives nothing.
    std::optional<Cell> CellOnGrid(std::string_view word, int line) const;

    const UnitLine* FindLine(UnitId id) const;  // nothing when no line wrote the unit
};

// The cell as a source writes it: "12,5".
std::string SourceCell(Cell cell);

// Every cell of a grid, by rows.
template <typename Visit>
void ForEachCell(const BattleFile& file, Visit visit) {
    for (int y = 0; y < file.mapHeight; ++y) {
        for (int x = 0; x < file.mapWidth; ++x)
            visit(Cell{x, y});
    }
}

inline const MapCell& CellOf(const BattleFile& file, Cell cell) {
    return file.cells[static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(file.mapWidth) +
                      static_cast<std::size_t>(cell.x)];
}

}  // namespace varnstride
