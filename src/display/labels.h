// Place names on the map. A name stands on a plate, so that it can be read over any ground; the two
// styles of its record choose the plate.
#pragma once

#include <vector>

#include "display/surface.h"
#include "model/game.h"

namespace varnstride {

constexpr int kPlateHeight = 15;

struct PlacedLabel {
    Cell cell;
    int label = 0;

    friend bool operator==(const PlacedLabel&, const PlacedLabel&) = default;
};

// The cells that bear a label, by rows; the last column bears none.
std::vector<PlacedLabel> PlacedLabels(const Game& game);

// The pixels that a label takes from its cell rightwards.
int LabelWidth(const MapLabel& label);

// Draws a label with its top left corner at a point. What lies outside the clip rectangle or the
// surface is left out.
void DrawLabel(Surface& surface, const Rect& clip, Point at, const MapLabel& label);

}  // namespace varnstride
