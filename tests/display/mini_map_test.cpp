// The jump map: what a cell shows, where a click leads, and when it does not fit the screen.
#include "display/mini_map.h"

#include <gtest/gtest.h>

#include "support/field.h"

namespace varnstride {
namespace {

struct TileCase {
    MapCell cell;
    int mini;
};

TEST(MiniMap, ShowsHeightTerrainRoadsAndObjectives) {
    const auto terrain = [](int tile) { return MapCell{.terrainTile = tile, .groundTile = 12}; };
    const TileCase cases[] = {
        {{.groundTile = 5}, 0},
        {{.groundTile = 107}, 17},
        {{.groundTile = 108}, 0},
        {{.groundTile = 143}, 5},
        {terrain(5), 2},
        {terrain(1), 4},
        {terrain(3), 25},
        {terrain(4), 29},
        {terrain(8), 24},
        {terrain(9), 2},
        {terrain(14), 25},
        {terrain(62), 27},
        {terrain(26), 26},
        {terrain(27), 24},
        {terrain(41), 28},
        {terrain(84), 30},
        {terrain(86), 28},
        {terrain(97), 31},
        {terrain(98), 28},
        {terrain(101), 26},
        {terrain(71), 17},
        {{.terrainTile = 3, .roadTile = 8}, 11},
        {{.terrainTile = 3, .roadTile = 11}, 25},
        {{.terrainTile = 84, .roadTile = 8}, 30},
        {{.objective = 5}, 32},
    };
    FieldPlan plan;
    plan.paint = [&](Cell at, MapCell& cell) {
        const auto index = static_cast<std::size_t>(at.y * 10 + at.x);
        if (at.x >= 10 || index >= std::size(cases)) return;
        const int areaId = cell.areaId;
        cell = cases[index].cell;
        cell.areaId = areaId;
    };
    const Field field(plan);
    for (int index = 0; index < static_cast<int>(std::size(cases)); ++index)
        EXPECT_EQ(MiniTileOf(field.game, {index % 10, index / 10}), cases[index].mini) << index;
}

TEST(MiniMap, ShowsUnitsThatAreSeen) {
    Field field({});
    Game& game = field.game;
    const UnitId id = field.Add(kPrussian, 2, 1, MakeUnit(UnitType::Lancers));
    const Cell place = game.At(id).Place();
    game.state.currentArmy = kBritish;
    EXPECT_EQ(MiniTileOf(game, place), 20) << "an ally, seen or not";
    game.state.currentArmy = kFrench;
    EXPECT_EQ(MiniTileOf(game, place), 0) << "in the fog";
    game.At(id).visible = 1;
    EXPECT_EQ(MiniTileOf(game, place), 20);
    game.At(id).visible = 0;
    game.header.fogNone = 1;
    EXPECT_EQ(MiniTileOf(game, place), 20);
    game.At(id).strength = 0;
    game.grid.ClearStanding();
    EXPECT_EQ(MiniTileOf(game, place), 0) << "marked as taken, but nobody stands there";
}

TEST(JumpMap, LeadsToTheCellUnderTheClick) {
    const Field field({});  // 25 x 6 cells
    const struct {
        Point click;
        std::optional<Cell> cell;
    } cases[] = {
        {{5, 90}, std::nullopt},    {{6, 81}, Cell{-1, -1}},  {{10, 85}, Cell{0, 0}},
        {{199, 200}, std::nullopt}, {{30, 80}, std::nullopt}, {{200, 47}, std::nullopt},
    };
    Grid tall(25, 40, std::vector<MapCell>(1000), *field.game.atlas);
    for (const auto& each : cases) {
        const Grid& grid = each.cell ? tall : field.game.grid;
        EXPECT_EQ(JumpCell(each.click, grid), each.cell) << each.click.x << ", " << each.click.y;
    }
    EXPECT_EQ(JumpCell({199, 319}, tall), (Cell{47, 58}));
    EXPECT_EQ(JumpCell({200, 319}, tall), std::nullopt);
    EXPECT_EQ(JumpCell({199, 320}, tall), std::nullopt);
}

TEST(JumpMap, SaysWhyItDoesNotFit) {
    const struct {
        int screen, map;
        bool fits;
        const char* words;  // how the refusal ends
    } cases[] = {
        {581, 101, true, ""},
        {580, 101, false, "1024 x 768"},
        {580, 100, false, ""},
        {609, 102, false, "1024 x 768"},
        {610, 102, false, ""},
        {760, 151, false, "1280 x 800"},
        {761, 151, true, ""},
        {768, 161, false, "1280 x 1024"},
        {790, 161, false, "1280 x 1024"},
        {791, 161, true, ""},
        {1080, 162, false, ""},
    };
    for (const auto& each : cases) {
        const JumpMapRoom room = RoomForJumpMap(each.screen, each.map);
        EXPECT_EQ(room.fits, each.fits) << each.screen << ", " << each.map;
        EXPECT_TRUE(room.refusal.ends_with(each.words)) << room.refusal;
        EXPECT_EQ(room.refusal.empty(), *each.words == '\0') << room.refusal;
    }
    EXPECT_FALSE(JumpMapKeyWarning(767, 101).empty());
    EXPECT_TRUE(JumpMapKeyWarning(768, 101).empty());
    EXPECT_TRUE(JumpMapKeyWarning(767, 100).empty());
}

}  // namespace
}  // namespace varnstride
