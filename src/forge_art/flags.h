// Flags and colours: the small ones that a battalion carries, and the large ones of reports.
#pragma once

#include "forge_art/plate.h"
#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

enum class Nation { French, British, Austrian, Prussian, Russian, Spanish };

// A colour on its pole, waving; the foot of the pole is at (0,0).
Tile CarriedColor(const Studio& studio, Nation nation);

// The national flag that fills a rectangle of the plate.
void DrawFlag(Plate& plate, const Palette& palette, QRectF area, Nation nation);

}  // namespace varnstride::art
