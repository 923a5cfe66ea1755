// The emblems of the armies: the eagle of the French, the crown of the British, the cross of the
// Prussians.
#pragma once

#include <QImage>

#include "forge_art/plate.h"
#include "forge_art/studio.h"

namespace varnstride::art {

QImage PaintEmblems(const Studio& studio);

// About 52 pixels high round a point; scale 1 is that of the reports.
void DrawEagle(Plate& plate, const Palette& palette, QPointF middle, double scale);
void DrawCrown(Plate& plate, const Palette& palette, QPointF middle, double scale);
void DrawIronCross(Plate& plate, const Palette& palette, QPointF middle, double scale);
void DrawLaurel(Plate& plate, const Palette& palette, QPointF middle, double radius);

// Paints a tile over a picture.
void Put(QImage& picture, const Tile& tile, QPoint at, int factor = 1);

}  // namespace varnstride::art
