// Place names on the map. A name stands on a plate, so that it can be read over any ground; the two
// styles of its record choose the plate. Names are pieced together from the sheet of labels.
#pragma once

#include <string_view>
#include <vector>

#include "display/surface.h"
#include "model/game.h"

namespace varnstride {

struct PlacedLabel {
    Cell cell;
    int label = 0;

    friend bool operator==(const PlacedLabel&, const PlacedLabel&) = default;
};

// The cells that bear a label, by rows; the last column bears none.
std::vector<PlacedLabel> PlacedLabels(const Game& game);

constexpr std::string_view kLabelCanvas = "Graphics/Labels6.bmp";

// The sheet of labels lettered in code, for one that is missing.
Surface PaintLabelCanvas();

// Draws a label with its top left corner at a point. A character that the sheet does not have is
// passed over without a gap. What lies outside the clip rectangle or the surface is left out.
void DrawLabel(const Surface& canvas, Surface& surface, const Rect& clip, Point at,
               const MapLabel& label);

}  // namespace varnstride
