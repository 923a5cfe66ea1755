// A scene as the tiles that make it, in the order in which they are laid down. Drawing them is
// another step, so that a list can be looked at, measured, or drawn in parts.
#pragma once

#include <vector>

#include "display/tile_set.h"

namespace varnstride {

struct PlacedTile {
    const TileSet* set;
    int tile;
    Point at;  // of the anchor
};

using TileList = std::vector<PlacedTile>;

inline void DrawTiles(const TileList& tiles, Surface& surface, const Rect& clip, Point shift) {
    for (const PlacedTile& placed : tiles)
        DrawTile(*placed.set, surface, clip, placed.at + shift, placed.tile);
}

}  // namespace varnstride
