// Marks laid over the ground and the units: shade, area borders, the cell in hand, objectives and
// exits, losses, for both views; and the footprints of cells that the mouse is looked up in.
#pragma once

#include <QImage>
#include <vector>

#include "forge_art/hex_shape.h"
#include "forge_art/studio.h"
#include "forge_art/tile.h"

namespace varnstride::art {

std::vector<Tile> PaintShade(const Studio& studio, const HexShape& hex);
std::vector<Tile> PaintBorders(const Studio& studio, const HexShape& hex);
std::vector<Tile> PaintHighlight(const Studio& studio, const HexShape& hex);
// Tile 0 a bold outline, tile 1 a fine one.
std::vector<Tile> PaintOutlines(const Studio& studio, const HexShape& hex);
std::vector<Tile> PaintObjectives(const Studio& studio);
std::vector<Tile> PaintSmallObjectives(const Studio& studio);
std::vector<Tile> PaintLosses(const Studio& studio);

// A rectangle as wide as a cell and two rows high that begins at the cell's top left corner; its
// corners have the colours of the four cells that look in.
QImage PaintMouseMap(const HexShape& hex);

}  // namespace varnstride::art
