#include "display/marks.h"

namespace varnstride {
namespace {

bool IsIn(const CellRange& cells, Cell cell) {
    return cell.x >= cells.first.x && cell.x <= cells.last.x && cell.y >= cells.first.y &&
           cell.y <= cells.last.y;
}

void AddObjectives(const Game& game, const Art& art, const Plotter& plotter, const CellRange& cells,
                   TileList& tiles) {
    for (const Cell cell : game.grid.Objectives()) {
        if (!IsIn(cells, cell)) continue;
        tiles.push_back(
            {&art.At(Sheet::Objectives), game.grid.Ground(cell).objective, plotter.PlotCell(cell)});
    }
}

// The number of a loss stands on the plate that is the sheet's first tile.
void AddLosses(const PlayCell& cell, const Art& art, Point at, TileList& tiles) {
    if (cell.moveMark <= 0) return;
    tiles.push_back({&art.At(Sheet::Losses), 0, at});
    tiles.push_back({&art.At(Sheet::Losses), cell.moveMark, at});
}

}  // namespace

TileList MarkTiles(const Game& game, const Art& art, ViewKind view, const Plotter& plotter,
                   const CellRange& cells) {
    const bool normal = view == ViewKind::Normal;
    const TileSet& highlight = art.At(normal ? Sheet::Highlight : Sheet::SmallHighlight);
    TileList tiles;
    if (normal && game.settings.showObjectives == 1)
        AddObjectives(game, art, plotter, cells, tiles);
    for (int y = cells.first.y; y <= cells.last.y; ++y) {
        for (int x = cells.first.x; x <= cells.last.x; ++x) {
            const PlayCell& cell = game.grid.At({x, y});
            const Point at = plotter.PlotCell({x, y});
            if (cell.highlight > 0) tiles.push_back({&highlight, 0, at});
            if (normal && game.settings.quickResults == 1) AddLosses(cell, art, at, tiles);
        }
    }
    return tiles;
}

Rect MarkReach(const Art& art, ViewKind view) {
    if (view == ViewKind::ZoomOut) return art.At(Sheet::SmallHighlight).Reach();
    return Union(Union(art.At(Sheet::Objectives).Reach(), art.At(Sheet::Highlight).Reach()),
                 art.At(Sheet::Losses).Reach());
}

}  // namespace varnstride
