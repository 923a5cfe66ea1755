// The cutting of sheets by their marks, and the drawing of keyed tiles.
#include "display/tile_set.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "display/painted_sheet.h"

namespace varnstride {
namespace {

constexpr Pixel kInk = MakePixel(200, 30, 30);

// One tile between the lines 0 and 20 across and 0 and 16 down, with both anchor marks.
Surface OneTileSheet() {
    Surface sheet = PaintSheet({{Surface(15, 11, kInk), {7, 5}}}, 1);
    for (int x = 1; x < 20; ++x)
        sheet.At(x, 0) = kBlack;
    for (int y = 1; y < 16; ++y)
        sheet.At(0, y) = kBlack;
    sheet.At(9, 0) = kAnchorColor;
    sheet.At(0, 7) = kAnchorColor;
    return sheet;
}

struct Mark {
    Point at;
    Pixel color;
};

struct GoodSheet {
    const char* name;
    std::vector<Mark> marks;
    Rect source;
    Point anchor;
};

// Firsts and anchors are looked for from the line on to just before the place before the far line,
// lasts from that place back.
const GoodSheet kGoodSheets[] = {
    {"no extent marks: the cell", {}, {1, 1, 20, 16}, {9, 7}},
    {"extents",
     {{{4, 0}, kExtentColor},
      {{12, 0}, kExtentColor},
      {{0, 3}, kExtentColor},
      {{0, 9}, kExtentColor}},
     {4, 3, 13, 10},
     {9, 7}},
    {"one mark is first and last", {{{6, 0}, kExtentColor}}, {6, 1, 7, 16}, {9, 7}},
    {"anchor and extent in one",
     {{{9, 0}, kBothColor}, {{0, 7}, kBothColor}},
     {9, 7, 10, 8},
     {9, 7}},
    {"the first anchor counts",
     {{{3, 0}, kAnchorColor}, {{0, 12}, kAnchorColor}},
     {1, 1, 20, 16},
     {3, 7}},
    {"a first in the last place is none",
     {{{19, 0}, kExtentColor}, {{0, 15}, kExtentColor}},
     {1, 1, 20, 16},
     {9, 7}},
    {"the unused colour marks nothing", {{{5, 0}, kUnusedColor}}, {1, 1, 20, 16}, {9, 7}},
};

TEST(TileSheet, IsCutByItsMarks) {
    for (const GoodSheet& good : kGoodSheets) {
        SCOPED_TRACE(good.name);
        Surface sheet = OneTileSheet();
        for (const Mark& mark : good.marks)
            sheet.At(mark.at.x, mark.at.y) = mark.color;
        const Result<TileSet> set = CutTileSet(sheet, "sheet");
        ASSERT_TRUE(set.Ok()) << set.Message();
        ASSERT_EQ(set.Get().Count(), 1);
        const Tile& tile = set.Get().At(0);
        EXPECT_TRUE(tile.source == good.source);
        EXPECT_TRUE(tile.anchor == good.anchor);
        EXPECT_TRUE(tile.destination == good.source.Moved(Point{} - good.anchor));
    }
}

TEST(TileSheet, NumbersItsTilesByRows) {
    std::vector<PaintedTile> tiles;
    for (int number = 0; number < 7; ++number)
        tiles.push_back({Surface(4 + number, 9 - number, MakePixel(number, 0, 0)), {number, 1}});
    const Result<TileSet> set = CutTileSet(PaintSheet(tiles, 3), "sheet");
    ASSERT_TRUE(set.Ok()) << set.Message();
    ASSERT_EQ(set.Get().Count(), 9);
    for (int number = 0; number < 7; ++number) {
        const Tile& tile = set.Get().At(number);
        EXPECT_TRUE((tile.destination == Rect{-number, -1, 4, 8 - number})) << number;
        EXPECT_EQ(set.Get().PictureOf(number), tiles[static_cast<std::size_t>(number)].picture);
    }
    EXPECT_FALSE(set.Get().Has(7)) << "an empty cell of the last row is no tile";
    EXPECT_FALSE(set.Get().Has(-1));
    EXPECT_FALSE(set.Get().Has(9));
}

struct BrokenSheet {
    const char* message;
    std::function<Surface()> make;
};

Surface Without(Pixel color) {
    Surface sheet = OneTileSheet();
    for (int y = 0; y < sheet.Height(); ++y) {
        for (int x = 0; x + 1 < sheet.Width(); ++x) {
            if (sheet.At(x, y) == color) sheet.At(x, y) = kBlack;
        }
    }
    return sheet;
}

TEST(TileSheet, IsRefusedWithWhatIsWrong) {
    const BrokenSheet broken[] = {
        {"sheet: is too small for the colours of its marks", [] { return Surface(); }},
        {"sheet: is too small for the colours of its marks", [] { return Surface(40, 4); }},
        {"sheet: one colour in its last column stands for grid lines and marks",
         [] { return Surface(64, 64, kGridColor); }},
        {"sheet: has no grid lines", [] { return Without(kGridColor); }},
        {"sheet: has no anchor marks", [] { return Without(kAnchorColor); }},
        {"sheet: is cut into 9702 tiles, more than 4096",
         [] {
             Surface sheet = OneTileSheet();
             Surface large(99, 100, kGridColor);
             Copy(sheet, {sheet.Width() - 1, 0, sheet.Width(), 5}, large, {98, 0});
             return large;
         }},
    };
    for (const BrokenSheet& sheet : broken) {
        const Result<TileSet> set = CutTileSet(sheet.make(), "sheet");
        ASSERT_FALSE(set.Ok()) << sheet.message;
        EXPECT_EQ(set.Message(), sheet.message);
    }
}

// A tile with holes, empty rows and solid rows.
PaintedTile SpeckledTile(std::mt19937& engine) {
    const auto below = [&](int count) { return static_cast<int>(engine() % count); };
    PaintedTile tile{Surface(1 + below(40), 1 + below(30)), {}};
    tile.anchor = {below(tile.picture.Width()), below(tile.picture.Height())};
    for (int y = 0; y < tile.picture.Height(); ++y) {
        const int opaque = below(3);  // halves
        for (int x = 0; x < tile.picture.Width(); ++x) {
            tile.picture.At(x, y) =
                below(2) < opaque ? MakePixel(below(256), below(256), 7) : kGridColor;
        }
    }
    return tile;
}

void DrawPlainly(const PaintedTile& tile, Surface& surface, const Rect& clip, Point at) {
    for (int y = 0; y < tile.picture.Height(); ++y) {
        for (int x = 0; x < tile.picture.Width(); ++x) {
            const Point place = at - tile.anchor + Point{x, y};
            const Pixel pixel = tile.picture.At(x, y);
            if (pixel == kGridColor || !clip.Holds(place) || !surface.Bounds().Holds(place))
                continue;
            surface.At(place.x, place.y) = pixel;
        }
    }
}

TEST(DrawTile, GivesWhatDrawingPixelByPixelGives) {
    std::mt19937 engine(20);
    for (int round = 0; round < 400; ++round) {
        const PaintedTile painted = SpeckledTile(engine);
        const TileSet set = CutTileSet(PaintSheet({painted}, 1), "sheet").Get();
        const auto place = [&] { return static_cast<int>(engine() % 80) - 15; };
        const Rect clip{place(), place(), place(), place()};
        const Point at{place(), place()};
        Surface drawn(50, 50, kWhite);
        Surface expected = drawn;
        DrawTile(set, drawn, clip, at, 0);
        DrawPlainly(painted, expected, clip, at);
        ASSERT_EQ(drawn, expected) << "round " << round;
    }
}

}  // namespace
}  // namespace varnstride
