// Cells fit without gap or overlap, the mouse finds the cell that is drawn, and both cells beside a
// border put the same dots on it.
#include <gtest/gtest.h>

#include "forge_art/hex_shape.h"
#include "forge_art/marks.h"

namespace varnstride::art {
namespace {

constexpr HexShape kShapes[] = {kNormalHex, kSmallHex};

// The cells round one that can hold a pixel of the two rows below its top.
QPoint Anchors(const HexShape& hex, int number) {
    const QPoint around[] = {{0, 0},
                             hex.Neighbour(kNorthEast),
                             hex.Neighbour(kEast),
                             hex.Neighbour(kSouthEast),
                             hex.Neighbour(kSouthWest),
                             hex.Neighbour(kWest),
                             hex.Neighbour(kNorthWest),
                             {0, 2 * hex.rowStep}};
    return around[number];
}

TEST(HexShape, EveryPixelBelongsToOneCell) {
    for (const HexShape& hex : kShapes) {
        for (int y = hex.Top(); y < hex.Top() + 2 * hex.rowStep; ++y) {
            for (int x = -hex.width / 2; x < hex.width / 2; ++x) {
                int owners = 0;
                for (int number = 0; number < 8; ++number) {
                    const QPoint at = Anchors(hex, number);
                    owners += hex.Contains(x - at.x(), y - at.y()) ? 1 : 0;
                }
                ASSERT_EQ(owners, 1) << hex.width << ": " << x << "," << y;
            }
        }
    }
}

TEST(MouseMap, NamesTheCellThatHoldsThePixel) {
    for (const HexShape& hex : kShapes) {
        const QImage map = PaintMouseMap(hex);
        ASSERT_EQ(map.size(), QSize(hex.width, 2 * hex.rowStep));
        const QRgb inside = map.pixel(hex.width / 2, -hex.Top());
        for (int y = 0; y < map.height(); ++y) {
            for (int x = 0; x < map.width(); ++x) {
                const bool own = hex.Contains(x - hex.width / 2, y + hex.Top());
                ASSERT_EQ(map.pixel(x, y) == inside, own) << x << "," << y;
            }
        }
        const QPoint corners[] = {{0, 0},
                                  {map.width() - 1, 0},
                                  {0, map.height() - 1},
                                  {map.width() - 1, map.height() - 1}};
        for (const QPoint& corner : corners) {
            for (const QPoint& other : corners) {
                EXPECT_EQ(map.pixel(corner) == map.pixel(other), corner == other);
            }
            EXPECT_NE(map.pixel(corner), inside);
        }
    }
}

// Pictures of one side: their numbers by side.
constexpr int kOneSided[kSideCount] = {28, 29, 30, 31, 1, 27};

TEST(Borders, BothCellsPutTheSameDots) {
    const Result<Studio> studio = OpenStudio(VARNSTRIDE_ART);
    ASSERT_TRUE(studio.Ok());
    for (const HexShape& hex : kShapes) {
        const std::vector<Tile> borders = PaintBorders(studio.Get(), hex);
        for (int side = 0; side < kSideCount; ++side) {
            const Tile& here = borders[static_cast<std::size_t>(kOneSided[side])];
            const Tile& there = borders[static_cast<std::size_t>(kOneSided[(side + 3) % 6])];
            const QPoint step = hex.Neighbour(side);
            int dots = 0;
            for (int y = -40; y < 40; ++y) {
                for (int x = -40; x < 40; ++x) {
                    ASSERT_EQ(here.At(x, y), there.At(x - step.x(), y - step.y()))
                        << hex.width << " side " << side << ": " << x << "," << y;
                    dots += here.IsEmptyAt(x, y) ? 0 : 1;
                }
            }
            EXPECT_GT(dots, hex.slant / 2);
        }
    }
}

}  // namespace
}  // namespace varnstride::art
