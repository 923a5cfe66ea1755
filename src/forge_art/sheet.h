// The form in which the game reads tiles: a bitmap that carries its own layout in marker pixels.
// Grid lines part the cells, marks on the line above and to the left of a cell tell its anchor and
// what part of it is drawn, and the top of the last column says which colour means what.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "forge_art/tile.h"
#include "model/result.h"

namespace varnstride::art {

// The colour of grid lines, which is the transparent colour as well. No painter may use it.
constexpr QRgb kGridColor = qRgb(255, 0, 255);
constexpr QRgb kIdleColor = qRgb(0, 0, 0);
constexpr QRgb kAnchorColor = qRgb(255, 0, 0);
constexpr QRgb kExtentColor = qRgb(0, 255, 0);
constexpr QRgb kBothColor = qRgb(255, 255, 0);

// Lays tiles out by rows, each cut down to its opaque pixels. The last row is filled up with empty
// tiles.
QImage SheetOf(const std::vector<Tile>& tiles, int columns);

// Writes a picture as a bitmap of 24 bits a pixel; the same picture gives the same bytes.
Result<Done> WriteBitmap(const std::string& path, const QImage& picture);

}  // namespace varnstride::art
