// The ground under everything: a wash of colour a height band, meadow or crops, for both views. The
// sheet is cut so that a cell's picture reaches raggedly over the cells above and to its left,
// which are drawn before it: so bands meet without the straight lines of the cells.
#pragma once

#include <vector>

#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

// The ground tiles first to first + 71 of the normal view, six a band.
std::vector<Tile> PaintGround(const Studio& studio, int first);

// The bands of the zoom-out view; number 11 is the mark of a road or a bridge.
std::vector<Tile> PaintSmallGround(const Studio& studio);

// The colour of a band, for the mini-map.
QRgb BandColor(const Studio& studio, int band);

}  // namespace varnstride::art
