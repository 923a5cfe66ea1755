#include "display/painted_sheet.h"

#include <array>

namespace varnstride {
namespace {

constexpr int kInset =
    2;  // of a picture in its cell, so that no mark falls out of the scanned range

void Mark(Surface& sheet, Point at, Pixel color) {
    Pixel& pixel = sheet.At(at.x, at.y);
    pixel = pixel == kBlack || pixel == color ? color : kBothColor;
}

// Tells where the picture ends and where its anchor is, once along the top and once along the left.
void MarkTile(Surface& sheet, Point corner, const PaintedTile& tile) {
    const Point first = corner + Point{kInset, kInset};
    const Point last = first + Point{tile.picture.Width() - 1, tile.picture.Height() - 1};
    const Point anchor = first + tile.anchor;
    for (const int x : {first.x, last.x})
        Mark(sheet, {x, corner.y}, kExtentColor);
    for (const int y : {first.y, last.y})
        Mark(sheet, {corner.x, y}, kExtentColor);
    Mark(sheet, {anchor.x, corner.y}, kAnchorColor);
    Mark(sheet, {corner.x, anchor.y}, kAnchorColor);
}

}  // namespace

Surface PaintSheet(const std::vector<PaintedTile>& tiles, int columns) {
    Point cell{};
    for (const PaintedTile& tile : tiles) {
        cell.x = std::max(cell.x, tile.picture.Width() + 2 * kInset + 1);
        cell.y = std::max(cell.y, tile.picture.Height() + 2 * kInset + 1);
    }
    const int rows = (static_cast<int>(tiles.size()) + columns - 1) / columns;
    Surface sheet(columns * cell.x + 1, std::max(rows * cell.y + 1, 6));
    for (std::size_t index = 0; index < tiles.size(); ++index) {
        const int number = static_cast<int>(index);
        const Point corner{number % columns * cell.x, number / columns * cell.y};
        MarkTile(sheet, corner, tiles[index]);
        Copy(tiles[index].picture, tiles[index].picture.Bounds(), sheet,
             corner + Point{kInset, kInset});
    }
    for (int column = 0; column <= columns; ++column)
        sheet.At(column * cell.x, 0) = kGridColor;
    for (int row = 0; row <= rows; ++row)
        sheet.At(0, row * cell.y) = kGridColor;
    const std::array legend = {kGridColor, kUnusedColor, kAnchorColor, kExtentColor, kBothColor};
    for (int y = 0; y < static_cast<int>(legend.size()); ++y)
        sheet.At(sheet.Width() - 1, y) = legend[static_cast<std::size_t>(y)];
    return sheet;
}

void Overwrite(std::vector<std::byte>& bytes, std::size_t at, std::uint32_t number,
               std::size_t width) {
    for (std::size_t index = 0; index < width; ++index)
        bytes[at + index] = static_cast<std::byte>(number >> 8 * index & 255U);
}

std::vector<std::byte> EncodeBmp(const Surface& picture) {
    constexpr std::size_t kHeaders = 54;
    const auto width = static_cast<std::size_t>(picture.Width());
    const std::size_t rowBytes = (width * 3 + 3) / 4 * 4;
    std::vector<std::byte> bytes(kHeaders + rowBytes * static_cast<std::size_t>(picture.Height()));
    Overwrite(bytes, 0, 0x4D42, 2);
    Overwrite(bytes, 2, static_cast<std::uint32_t>(bytes.size()), 4);
    Overwrite(bytes, 10, kHeaders, 4);
    Overwrite(bytes, 14, 40, 4);
    Overwrite(bytes, 18, static_cast<std::uint32_t>(picture.Width()), 4);
    Overwrite(bytes, 22, static_cast<std::uint32_t>(picture.Height()), 4);
    Overwrite(bytes, 26, 1, 2);
    Overwrite(bytes, 28, 24, 2);
    for (int y = 0; y < picture.Height(); ++y) {
        std::size_t at = kHeaders + rowBytes * static_cast<std::size_t>(picture.Height() - 1 - y);
        for (int x = 0; x < picture.Width(); ++x, at += 3)
            Overwrite(bytes, at, picture.At(x, y) & 0xFFFFFFU, 3);
    }
    return bytes;
}

}  // namespace varnstride
