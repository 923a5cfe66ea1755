// The layers of the map that do not move: from the ground up to the borders and, in the zoom-out
// view, the objectives. Which tile a cell has in each layer stands in the cell; here is only the
// order in which the layers lie, and which options switch them.
#pragma once

#include "display/art.h"
#include "display/plotter.h"
#include "display/tile_list.h"
#include "model/game.h"

namespace varnstride {

// What of a cell the still layers show, for telling whether it must be drawn again.
struct CellLook {
    int terrain = 0;
    int ground = 0;
    int overlay = 0;
    int feature = 0;
    int road = 0;
    int shade = 0;
    int border = 0;
    int objective = 0;

    friend bool operator==(const CellLook&, const CellLook&) = default;
};
CellLook LookOf(const Game& game, Cell cell);

// The options that the still layers obey.
struct LayerOptions {
    bool contours = false;
    bool outline = false;
    bool objectives = false;
    bool labels = false;

    friend bool operator==(const LayerOptions&, const LayerOptions&) = default;
};
LayerOptions OptionsOf(const Settings& settings);

// The cells that are drawn: every row, all columns but the last.
CellRange DrawnCells(const Grid& grid);

// The rectangle around whatever the still layers of a view draw for a cell, its anchor at (0, 0).
Rect LayerReach(const Art& art, ViewKind view);

// The tiles of the cells in the range, in world pixels. In the normal view the floor of all cells
// comes first, then their terrain, then the borders; in the zoom-out view cell after cell.
TileList StillTiles(const Game& game, const Art& art, ViewKind view, const Plotter& plotter,
                    const CellRange& cells);

}  // namespace varnstride
