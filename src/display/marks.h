// What lies over the units of a scene: objectives, highlights, losses and, in the zoom-out view,
// place names.
#pragma once

#include "display/art.h"
#include "display/map_view.h"
#include "display/tile_list.h"
#include "model/game.h"

namespace varnstride {

// The tiles of the marks of the cells in the range, in world pixels. In the normal view objectives
// come before highlights and losses; in the zoom-out view they are a still layer and losses are
// not shown.
TileList MarkTiles(const Game& game, const Art& art, ViewKind view, const Plotter& plotter,
                   const CellRange& cells);

// The rectangle around whatever marks draw for a cell, its anchor at (0, 0).
Rect MarkReach(const Art& art, ViewKind view);

}  // namespace varnstride
