// The units of a scene: who is seen, and which tiles show him, his base, his morale and his
// ammunition. Armies come in their order and records from the last to the first, wherever they
// stand, so that at a crowded spot a later army lies over an earlier one.
#pragma once

#include <vector>

#include "display/art.h"
#include "display/map_view.h"
#include "display/tile_list.h"
#include "model/game.h"

namespace varnstride {

// Whether the scene shows a unit, as far as the fog of war and its arrival go. A unit that is due
// this very turn is shown once it has been placed.
bool IsUnitSeen(const Game& game, UnitId id);

// The tiles of all units seen, in world pixels. In the zoom-out view only those whose cell is
// marked as taken are shown.
TileList UnitTiles(const Game& game, const Art& art, ViewKind view, const Plotter& plotter);

}  // namespace varnstride
