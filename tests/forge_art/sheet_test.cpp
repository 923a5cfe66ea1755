// What the sheet writer puts down the game's cutter finds again, pixel for pixel, in a file.
#include "forge_art/sheet.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "display/tile_set.h"

namespace varnstride::art {
namespace {

constexpr QRgb kInk = qRgb(12, 34, 56);

Tile Dots(std::initializer_list<QPoint> dots) {
    Tile tile(QRect(-20, -20, 40, 40));
    int count = 0;
    for (const QPoint& dot : dots)
        tile.Set(dot.x(), dot.y(), kInk + static_cast<QRgb>(count++));
    return tile;
}

// The tile as it is drawn: with its anchor in the middle of a surface of the transparent colour.
Surface Drawn(const TileSet& set, int number) {
    constexpr int kHalf = 20;
    Surface surface(2 * kHalf, 2 * kHalf, kGridColor);
    DrawTile(set, surface, surface.Bounds(), {kHalf, kHalf}, number);
    return surface;
}

TEST(SheetOf, GivesBackEveryTileRoundItsAnchor) {
    const std::vector<Tile> tiles = {
        Dots({{0, 0}}),                            // the anchor alone
        Dots({{-3, -2}, {4, 5}}),                  // round the anchor
        Dots({{0, -9}, {6, 0}}),                   // the anchor in a corner
        Dots({{-7, 0}, {0, 8}}),                   // and in the opposite one
        Dots({{10, -12}, {12, -12}, {10, -15}}),   // beside the anchor
        Dots({{-19, 19}, {19, -19}, {-19, -19}}),  // as far out as the sheet goes
        Tile(),                                    // nothing
    };
    const std::string path = std::filesystem::path(testing::TempDir()) / "varnstride_sheet.bmp";
    for (const int columns : {1, 3, 8}) {
        ASSERT_TRUE(WriteBitmap(path, SheetOf(tiles, columns)).Ok());
        const Result<TileSet> set = LoadTileSet(path);
        ASSERT_TRUE(set.Ok()) << set.Message();
        for (int number = 0; number < static_cast<int>(tiles.size()); ++number) {
            SCOPED_TRACE(std::to_string(columns) + " columns, tile " + std::to_string(number));
            ASSERT_TRUE(set.Get().Has(number));
            const Surface drawn = Drawn(set.Get(), number);
            for (int y = -20; y < 20; ++y) {
                for (int x = -20; x < 20; ++x) {
                    const QRgb wanted = tiles[static_cast<std::size_t>(number)].At(x, y);
                    ASSERT_EQ(drawn.At(x + 20, y + 20), wanted == 0 ? kGridColor : wanted);
                }
            }
        }
    }
    std::filesystem::remove(path);
}

}  // namespace
}  // namespace varnstride::art
