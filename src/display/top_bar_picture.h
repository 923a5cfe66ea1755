// The strip over the map: command points of the army in turn and how the battle stands. Drawing it
// changes nothing; the score is brought up to date by whoever asks for it to be drawn.
#pragma once

#include <string_view>

#include "display/surface.h"
#include "model/game.h"

namespace varnstride {

constexpr std::string_view kTopBarCanvas = "Graphics/Nap4.bmp";
constexpr int kTopBarWidth = 550;
constexpr int kTopBarHeight = 35;

// Draws the strip with its top left corner at (0, 0) for the French, the British and the Prussians;
// any other army leaves the surface as it is. Pieces are copied from the canvas; without one, plain
// words stand in for them.
void DrawTopBarPicture(const Game& game, const Surface* canvas, Surface& strip);

}  // namespace varnstride
