// Sheets and BMP files made in the test, by the description of the formats and not by our readers.
#pragma once

#include <cstddef>
#include <vector>

#include "display/surface.h"

namespace varnstride {

constexpr Pixel kGridColor = MakePixel(255, 0, 255);
constexpr Pixel kUnusedColor = MakePixel(1, 2, 3);
constexpr Pixel kAnchorColor = MakePixel(255, 255, 0);
constexpr Pixel kExtentColor = MakePixel(0, 255, 255);
constexpr Pixel kBothColor = MakePixel(0, 255, 0);

struct PaintedTile {
    Surface picture;
    Point anchor;  // inside the picture, from its top left corner
};

// A sheet of that many columns that holds the tiles, row after row, each marked with its anchor and
// its drawn size. Tiles may differ in size.
Surface PaintSheet(const std::vector<PaintedTile>& tiles, int columns);

// A BMP file of 24 bits a pixel, the lowest row first.
std::vector<std::byte> EncodeBmp(const Surface& picture);

// Writes a number over bytes of a file, the lowest byte first.
void Overwrite(std::vector<std::byte>& bytes, std::size_t at, std::uint32_t number,
               std::size_t width);

}  // namespace varnstride
