// From cells to pixels and back, in both views, wherever the map is scrolled to.
#include "display/map_view.h"

#include <gtest/gtest.h>

#include <random>

#include "display/painted_art.h"
#include "support/field.h"

namespace varnstride {
namespace {

constexpr ViewKind kViews[] = {ViewKind::Normal, ViewKind::ZoomOut};

FieldPlan PlanOf(int columns, int rows) {
    FieldPlan plan;
    plan.columns = columns;
    plan.rows = rows;
    return plan;
}

int TileWidthOf(ViewKind view) {
    return view == ViewKind::Normal ? 32 : 16;
}

// Calls look(pixel, cell) for every pixel of every cell, seen from the cell's anchor.
template <typename Look>
void ForEachPixel(const Grid& grid, int tileWidth, Look look) {
    for (int y = 0; y < grid.Height(); ++y) {
        for (int x = 0; x < grid.Width(); ++x) {
            for (int row = 0; row < RowsOfHex(tileWidth); ++row) {
                const int half = HalfWidthOfHex(tileWidth, row);
                for (int column = -half; column < half; ++column)
                    look(Point{column, row - RowsAboveAnchor(tileWidth)}, Cell{x, y});
            }
        }
    }
}

TEST(MapView, GivesBackTheCellOfEveryPixel) {
    const Field field(PlanOf(2, 3));
    const Art painted = PaintArt();
    const Art standIns;
    std::mt19937 engine(5);
    for (const Art* art : {&painted, &standIns}) {
        for (const ViewKind kind : kViews) {
            MapView view(*art, kind, field.game.grid, MapSpace(300, 260));
            for (int round = 0; round < 12; ++round) {
                const auto scroll = [&] { return static_cast<int>(engine() % 900) - 300; };
                view.ScrollTo({scroll(), scroll()}, round % 2 == 0);
                int wrong = 0;
                ForEachPixel(field.game.grid, TileWidthOf(kind), [&](Point pixel, Cell cell) {
                    wrong += view.ScreenToCell(view.CellToScreen(cell) + pixel) == cell ? 0 : 1;
                });
                ASSERT_EQ(wrong, 0) << "view " << static_cast<int>(kind) << ", anchor "
                                    << view.Scroll().anchor.x << ", " << view.Scroll().anchor.y;
            }
        }
    }
}

TEST(MapView, FindsCellsOffTheGridToo) {
    const Field field({});
    const Art art = PaintArt();
    MapView view(art, ViewKind::Normal, field.game.grid, {0, 0, 200, 200});
    const auto at = [&](Cell cell) { return view.ScreenToCell(view.CellToScreen(cell)); };
    for (const Cell cell : {Cell{-1, 0}, Cell{-3, -4}, Cell{2, -1}, Cell{-1, 5}, Cell{60, -7}})
        EXPECT_TRUE(at(cell) == cell) << cell.x << ", " << cell.y;
}

TEST(MouseMap, LetsTheLaterOfTwoCornersAlikeWin) {
    Surface picture = PaintFootprint(32);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            if (picture.At(x, y) != kWhite) picture.At(x, y) = kBlack;
        }
    }
    const MouseMap map = MakeMouseMap(picture, "footprint").Get();
    for (const Point corner : {Point{0, 0}, Point{31, 0}, Point{0, 63}, Point{31, 63}})
        EXPECT_TRUE((map.CellAt(corner) == Cell{-1, 1}));
    EXPECT_EQ(MakeMouseMap(Surface(33, 64), "footprint").Message(),
              "footprint: is no footprint of a cell: its size is 33 x 64");
}

TEST(MapView, StopsAtTheEdgesOfTheMap) {
    const Field field(PlanOf(5, 6));  // 41 x 36 cells
    const Art art = PaintArt();
    MapView view(art, ViewKind::Normal, field.game.grid, MapSpace(405, 365));
    const Scroller& scroll = view.Scroll();
    // Columns 1 to 39: the western side of column 1 in even rows to the eastern one of 39 in odd.
    EXPECT_TRUE((scroll.worldSpace == Rect{16, -21, 39 * 32 + 32, 35 * 32 + 21}));
    view.ScrollBy(-50, -50, false);
    EXPECT_TRUE((scroll.anchor == Point{-50, -50})) << "an arrow key does not clip";
    view.ScrollBy(0, 0, true);
    EXPECT_TRUE((scroll.anchor == Point{16, -21}));
    view.ScrollBy(99999, 99999, true);
    EXPECT_TRUE((scroll.anchor == Point{1280 - 400 - 1, 1141 - 300 - 1}));
    view.SetScreenSpace(MapSpace(3000, 3000));
    for (const int way : {-500, 0, 500}) {
        view.ScrollBy(way, way, true);
        EXPECT_TRUE((scroll.anchor == Point{16, -21})) << "a small map cannot scroll";
    }
}

TEST(MapView, BringsACellAQuarterIntoTheView) {
    const Field field(PlanOf(5, 6));
    const Art art = PaintArt();
    MapView view(art, ViewKind::Normal, field.game.grid, MapSpace(405, 365));
    EXPECT_FALSE(view.CentreOnCell({5, 5}));
    EXPECT_TRUE((view.Scroll().anchor == Point{}));
    EXPECT_TRUE(view.CentreOnCell({20, 20}));
    EXPECT_TRUE((view.CellToScreen({20, 20}) == Point{5 + 100, 65 + 75}));
    EXPECT_TRUE(view.CentreOnCell({39, 35}));
    EXPECT_TRUE(view.Scroll().screenSpace.Holds(view.CellToScreen({39, 35})));
}

TEST(EdgeScroll, PullsNearTheEdgesOnly) {
    const struct {
        int x;
        int pull;
    } overFrame[] = {{-10, 0},  {-9, -15},  {-1, -15},  {0, 0},
                     {1004, 0}, {1005, 15}, {1024, 15}, {1025, 0}};
    for (const auto& each : overFrame)
        EXPECT_TRUE((EdgePullOverFrame(each.x, 1024) == Point{each.pull, 0})) << each.x;
    const struct {
        int y;
        int pull;
    } inside[] = {{45, 0}, {46, -14}, {59, -1}, {60, 0}, {688, 0}, {689, 11}, {697, 19}, {698, 0}};
    for (const auto& each : inside)
        EXPECT_TRUE((EdgePullInside(each.y, 768) == Point{0, each.pull})) << each.y;
}

}  // namespace
}  // namespace varnstride
