// Buildings, one at a time, seen from the south and slightly above, lit from the north-west:
// cottages, churches, walled farms, mills. Villages and single buildings put them together.
#pragma once

#include "forge_art/palette.h"
#include "forge_art/plate.h"

namespace varnstride::art {

enum class Roof { Red, Slate, Thatch };

// The middle of a building's southern wall at the ground, and how long the wall is; the ridge runs
// along it or away from the viewer.
void DrawHouse(Plate& plate, const Palette& palette, double x, double y, double length, Roof roof);
void DrawGabledHouse(Plate& plate, const Palette& palette, double x, double y, double length,
                     Roof roof);
void DrawChurch(Plate& plate, const Palette& palette, double x, double y);
void DrawTower(Plate& plate, const Palette& palette, double x, double y);
// Four ranges of buildings round a yard, with a gate to the south.
void DrawWalledFarm(Plate& plate, const Palette& palette, double x, double y, Roof roof);
void DrawManor(Plate& plate, const Palette& palette, double x, double y);
void DrawWindmill(Plate& plate, const Palette& palette, double x, double y);
void DrawTent(Plate& plate, const Palette& palette, double x, double y, double size);
void DrawHaystack(Plate& plate, const Palette& palette, double x, double y);
void DrawWall(Plate& plate, const Palette& palette, double x1, double y1, double x2, double y2);

}  // namespace varnstride::art
