#include "forge/scenario_build.h"

#include "forge/source_text.h"

namespace varnstride {

std::optional<Cell> ScenarioBuild::CellOnGrid(std::string_view word, int line) const {
    const std::optional<Cell> cell = CellFrom(word);
    if (!cell) {
        errors.Add(line, "expected a cell \"x,y\", found \"" + std::string(word) + "\"");
        return std::nullopt;
    }
    if (!Holds(*cell)) {
        errors.Add(line, "cell " + SourceCell(*cell) + " is off the grid: expected 0,0 to " +
                             SourceCell({file.mapWidth - 1, file.mapHeight - 1}));
        return std::nullopt;
    }
    return cell;
}

void ScenarioBuild::SetSize(int width, int height) {
    if (width < 1 || height < 1 || width > kMostOfGrid || height > kMostOfGrid) return;
    file.mapWidth = width;
    file.mapHeight = height;
    MapCell empty;
    empty.borderTile = kBorderToBeDrawn;
    file.cells.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), empty);
}

const UnitLine* ScenarioBuild::FindLine(UnitId id) const {
    for (const UnitLine& unit : unitLines) {
        if (unit.id == id) return &unit;
    }
    return nullptr;
}

std::string SourceCell(Cell cell) {
    return std::to_string(cell.x) + "," + std::to_string(cell.y);
}

}  // namespace varnstride
