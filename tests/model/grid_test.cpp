// The hex grid: neighbours, the clamp of a click, shade, and the pictures of area borders.
#include "model/grid.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "support/field.h"

namespace varnstride {
namespace {

struct StepCase {
    Cell from;
    Direction direction;
    Cell expected;
};

constexpr StepCase kSteps[] = {
    {{5, 4}, Direction::North, {5, 2}},     {{5, 4}, Direction::NorthEast, {5, 3}},
    {{5, 3}, Direction::NorthEast, {6, 2}}, {{5, 4}, Direction::East, {6, 4}},
    {{5, 4}, Direction::SouthEast, {5, 5}}, {{5, 3}, Direction::SouthEast, {6, 4}},
    {{5, 3}, Direction::South, {5, 5}},     {{5, 4}, Direction::SouthWest, {4, 5}},
    {{5, 3}, Direction::SouthWest, {5, 4}}, {{5, 3}, Direction::West, {4, 3}},
    {{5, 4}, Direction::NorthWest, {4, 3}}, {{5, 3}, Direction::NorthWest, {5, 2}},
};

TEST(Step, OddRowsStandHalfAHexToTheRight) {
    for (const StepCase& given : kSteps) {
        EXPECT_EQ(Step(given.from, given.direction), given.expected)
            << given.from.x << "," << given.from.y << " by " << static_cast<int>(given.direction);
    }
}

TEST(Grid, AClickIsHeldInsideThePlayableColumns) {
    const Field field({});  // 25 x 6 cells
    const std::pair<Cell, Cell> clicks[] = {
        {{0, 0}, {1, 0}},  {{24, 5}, {23, 5}},  {{23, 3}, {23, 3}},
        {{-4, 9}, {1, 5}}, {{90, -1}, {23, 0}}, {{1, 2}, {1, 2}},
    };
    for (const auto& [click, held] : clicks)
        EXPECT_EQ(field.game.grid.Clamped(click), held);
}

// Two rows of the atlas that share the middle columns: lighting both visits no cell twice.
TEST(Grid, EveryLitCellIsVisitedOnce) {
    const AreaRow west{21, {}, 6, {}, {}, {}, {}};
    const AreaRow east{21, 3, {}, {}, {}, {}, {}};
    const Atlas atlas(4, {west, east}, {});
    std::vector<MapCell> cells(10 * 4);
    for (MapCell& cell : cells)
        cell.areaId = 21;
    Grid grid(10, 4, cells, atlas);
    for (bool shadedBefore : {true, false}) {
        shadedBefore ? grid.ShadePlayable() : grid.LightPlayable();
        AreaSet both;
        both.Add(1);
        both.Add(2);
        grid.Light(both);
        std::set<std::pair<int, int>> seen;
        grid.ForEachLit([&](Cell cell) {
            EXPECT_TRUE(seen.insert({cell.x, cell.y}).second) << cell.x << "," << cell.y;
        });
        EXPECT_EQ(seen.size(), 9U * 4U);
    }
}

TEST(Grid, ShadeStandsAsReadUntilItIsRewritten) {
    FieldPlan plan;
    plan.paint = [](Cell at, MapCell& cell) { cell.shade = at.x % 2; };
    Field field(plan);
    Grid& grid = field.game.grid;
    EXPECT_TRUE(grid.IsLit({2, 1}));
    EXPECT_FALSE(grid.IsLit({3, 1}));
    AreaSet first;
    first.Add(1);
    grid.Light(first);
    EXPECT_TRUE(grid.IsLit({3, 1}));
    EXPECT_FALSE(grid.IsLit({9, 1}));
    grid.ShadePlayable();
    EXPECT_FALSE(grid.IsLit({2, 1}));
    EXPECT_TRUE(grid.IsLit({24, 1})) << "the last column is left alone";
    grid.ShadeAll();
    EXPECT_FALSE(grid.IsLit({24, 1}));
}

TEST(Grid, ACopyIsLitApartFromItsOriginal) {
    Field field({});
    Grid copy = field.game.grid;
    copy.ShadeAll();
    copy.At({2, 2}).occupant = 3;
    field.game.grid.LightAll();
    EXPECT_FALSE(copy.IsLit({2, 2}));
    EXPECT_TRUE(field.game.grid.IsLit({2, 2}));
    EXPECT_EQ(field.game.grid.At({2, 2}).occupant, 0);
}

// The sides of the cell (4, 4) beyond which another area number lies, as letters of the six sides
// in the order W NW NE E SE SW.
struct BorderCase {
    std::string_view sides;  // 1: another area there
    int tile;
};

constexpr BorderCase kBorders[] = {
    {"000000", 0},  {"100000", 1},  {"110000", 2},  {"111000", 3},  {"111100", 4},  {"111110", 5},
    {"111111", 6},  {"100001", 7},  {"100011", 8},  {"100111", 9},  {"101111", 10}, {"110111", 11},
    {"111011", 12}, {"111101", 13}, {"011111", 14}, {"110011", 15}, {"111001", 16}, {"011110", 17},
    {"001111", 18}, {"110001", 19}, {"011100", 20}, {"001110", 21}, {"000111", 22}, {"000011", 23},
    {"000110", 24}, {"001100", 25}, {"011000", 26}, {"010000", 27}, {"001000", 28}, {"000100", 29},
    {"000010", 30}, {"000001", 31}, {"101010", 0},  {"100100", 0},  {"010001", 0},
};

Grid GridWithOtherAreas(const std::vector<Cell>& others) {
    std::vector<MapCell> cells(9 * 9);
    for (MapCell& cell : cells)
        cell.areaId = 21;
    for (Cell cell : others)
        cells[static_cast<std::size_t>(cell.y * 9 + cell.x)].areaId = 22;
    Grid grid(9, 9, cells, Atlas(4, {}, {}));
    grid.FinishPictures();
    return grid;
}

TEST(BorderTile, PicturesTheSidesBeyondWhichAnotherAreaLies) {
    // The six neighbours of (4, 4) and of (4, 3), W NW NE E SE SW.
    const Cell even[] = {{3, 4}, {3, 3}, {4, 3}, {5, 4}, {4, 5}, {3, 5}};
    const Cell odd[] = {{3, 3}, {4, 2}, {5, 2}, {5, 3}, {5, 4}, {4, 4}};
    for (const BorderCase& given : kBorders) {
        std::vector<Cell> besideEven;
        std::vector<Cell> besideOdd;
        for (std::size_t side = 0; side < 6; ++side) {
            if (given.sides[side] == '0') continue;
            besideEven.push_back(even[side]);
            besideOdd.push_back(odd[side]);
        }
        EXPECT_EQ(GridWithOtherAreas(besideEven).Ground({4, 4}).borderTile, given.tile)
            << given.sides;
        EXPECT_EQ(GridWithOtherAreas(besideOdd).Ground({4, 3}).borderTile, given.tile)
            << given.sides;
    }
}

TEST(BorderTile, LooksNeitherAtColumnNoughtNorAtTheLastRow) {
    // (1, 4) beside column 0; (4, 7) above the last row, 8.
    const Grid grid = GridWithOtherAreas({{0, 4}, {0, 3}, {4, 8}, {5, 8}});
    EXPECT_EQ(grid.Ground({1, 4}).borderTile, 0);
    EXPECT_EQ(grid.Ground({4, 7}).borderTile, 0);
    const Grid last = GridWithOtherAreas({{8, 4}});
    EXPECT_EQ(last.Ground({7, 4}).borderTile, 29) << "the last column is compared";
}

TEST(FinishPictures, PlainsTheTilesOfTheMapMakerAndNoOther) {
    FieldPlan plan;
    plan.columns = 9;
    plan.paint = [](Cell at, MapCell& cell) { cell.terrainTile = at.x; };
    Field field(plan);
    field.game.grid.FinishPictures();
    for (int x = 0; x < field.game.grid.Width(); ++x) {
        EXPECT_EQ(field.game.grid.Ground({x, 5}).terrainTile, x >= 48 && x <= 53 ? 5 : x);
    }
}

}  // namespace
}  // namespace varnstride
