// What the ground is: every terrain tile's classes, the words of the information bar, and the
// counts over the six slots by which rules judge an area.
#include "model/terrain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "model/areas.h"
#include "support/field.h"

namespace varnstride {
namespace {

struct GroundClass {
    const char* name;
    bool (*is)(const GroundCell&);
    std::vector<int> tiles;
};

const GroundClass kClasses[] = {
    {"open", IsOpen, {0, 2, 5, 36, 37, 48, 49, 50, 51, 52, 53}},
    {"field", IsField, {1}},
    {"shallow", IsShallow, {3, 76, 77}},
    {"lake", IsLake, {4}},
    {"orchard", IsOrchard, {6, 7, 8}},
    {"rough", IsRough, {9, 10, 11}},
    {"marsh", IsMarsh, {12, 13, 14, 63, 64, 65}},
    {"woodland", IsWoodland, {15, 16, 17, 30, 31, 32, 33, 34, 35, 54, 55,
                              56, 57, 58, 59, 60, 61, 72, 73, 74, 75}},
    {"river", IsRiver, {18, 19, 20, 21, 22, 23}},
    {"village", IsVillage, {24, 25, 26}},
    {"vineyard", IsVineyard, {27, 28, 29}},
    {"forest", IsForest, {42, 43, 44, 45, 46, 47}},
    {"building", IsBuilding, {39, 40, 41, 84, 85, 86, 87, 88, 89}},
    {"rocks", IsRocks, {66, 67, 68, 69, 70, 71}},
    {"tower", IsTower, {86}},
    {"tents", IsTents, {99, 100, 101}},
    {"dense", IsDense, {6,  7,  8,  24, 25, 26, 39, 40, 41, 42, 43, 44, 45, 46,
                        47, 66, 67, 68, 69, 70, 71, 84, 85, 86, 87, 88, 89}},
    {"built up",
     IsBuiltUp,
     {24, 25, 26, 39, 40, 41, 42, 43, 44, 45, 46, 47, 84, 85, 86, 87, 88, 89}},
};

TEST(Terrain, EveryTileHasItsClassesAndNoOther) {
    for (const GroundClass& ground : kClasses) {
        for (int tile = 0; tile <= 110; ++tile) {
            GroundCell cell;
            cell.terrainTile = tile;
            const bool listed =
                std::find(ground.tiles.begin(), ground.tiles.end(), tile) != ground.tiles.end();
            EXPECT_EQ(ground.is(cell), listed) << ground.name << ", tile " << tile;
        }
    }
}

TEST(Terrain, PalisadesStandInTheOverlay) {
    for (int tile = 0; tile <= 150; ++tile) {
        GroundCell cell;
        cell.overlayTile = tile;
        const bool palisade =
            (tile >= 53 && tile <= 69) || tile == 104 || (tile >= 123 && tile <= 141);
        EXPECT_EQ(HasPalisade(cell), palisade) << tile;
    }
}

struct WordsCase {
    int terrainTile;
    int groundTile;
    int overlayTile;
    int roadTile;
    const char* words;
};

constexpr WordsCase kWords[] = {
    {5, 0, 33, 20, "     Clear"},
    {0, 35, 33, 20, "     Clear"},
    {0, 36, 33, 20, "     Sand"},
    {0, 53, 33, 20, "     Sand"},
    {0, 54, 33, 20, "     Clear"},
    {0, 71, 33, 20, "     Clear"},
    {0, 72, 33, 20, "  Frozen Ground"},
    {0, 107, 33, 20, "  Frozen Ground"},
    {0, 108, 33, 20, "     Clear"},
    {1, 40, 33, 20, "     Field"},
    {3, 0, 33, 20, "  Shallow Water"},
    {77, 0, 33, 11, "    Bridge"},
    {3, 0, 33, 1, "    Bridge"},  // smoke over water reads as a bridge
    {4, 0, 33, 11, "     Lake/Sea"},
    {8, 0, 33, 20, "     Orchard"},
    {9, 0, 33, 20, "     Rough"},
    {14, 0, 33, 20, "     Marsh"},
    {64, 0, 33, 20, "     Swamp"},
    {61, 0, 33, 20, "   Woodlands"},
    {62, 0, 33, 20, ""},
    {20, 0, 33, 20, "     River"},
    {20, 0, 33, 12, "    Bridge"},
    {25, 0, 33, 7, "     Village"},
    {27, 0, 33, 20, "    Vineyards"},
    {45, 0, 33, 20, "     Forest"},
    {40, 0, 33, 20, "     Building"},
    {41, 0, 33, 20, ""},
    {86, 0, 33, 20, "     Building   Tower"},
    {38, 0, 33, 20, "   Impassable"},
    {70, 0, 33, 20, "     Rocks"},
    {101, 0, 33, 20, "    Tents"},
    {45, 0, 60, 20, "     Palisade"},
    {0, 36, 104, 20, "     Palisade"},
};

TEST(Terrain, TheInformationBarNamesTheGround) {
    FieldPlan plan;
    plan.columns = 6;
    plan.paint = [](Cell at, MapCell& cell) {
        if (at.y != 0 || at.x >= static_cast<int>(std::size(kWords))) return;
        const WordsCase& given = kWords[at.x];
        cell.terrainTile = given.terrainTile;
        cell.groundTile = given.groundTile;
        cell.overlayTile = given.overlayTile;
        cell.roadTile = given.roadTile;
    };
    const Field field(plan);
    ASSERT_LE(std::size(kWords), static_cast<std::size_t>(field.game.grid.Width()));
    for (int x = 0; x < static_cast<int>(std::size(kWords)); ++x) {
        EXPECT_EQ(DescribeTerrain(field.game, {x, 0}), std::string("Terrain :  ") + kWords[x].words)
            << "tile " << kWords[x].terrainTile;
    }
}

// Terrain of the six slots, French first; the ground between them is forest throughout.
struct SlotsCase {
    const char* what;
    int tiles[6];
    int close;
    int dense;
    int builtUp;
};

constexpr SlotsCase kSlots[] = {
    {"open slots among woods", {0, 2, 5, 36, 37, 48}, 0, 0, 0},
    {"three fields make close ground", {1, 1, 1, 5, 5, 5}, 3, 0, 0},
    {"village, building, forest", {24, 39, 42, 5, 5, 5}, 3, 3, 3},
    {"orchard and rocks are dense, not built up", {6, 66, 5, 5, 5, 5}, 2, 2, 0},
    {"woodland and marsh are close, not dense", {15, 12, 5, 5, 5, 5}, 2, 0, 0},
    {"Allied slots count alike", {5, 5, 5, 24, 45, 71}, 3, 3, 2},
    {"all six", {86, 27, 18, 9, 4, 99}, 6, 1, 1},
};

TEST(Terrain, OnlyTheSixSlotsOfAnAreaCount) {
    for (const SlotsCase& given : kSlots) {
        FieldPlan plan;
        plan.columns = 1;
        plan.paint = [&given](Cell at, MapCell& cell) {
            const bool slot = (at.y == 1 || at.y == 4) && (at.x == 1 || at.x == 3 || at.x == 5);
            cell.terrainTile = slot ? given.tiles[(at.y == 4 ? 3 : 0) + at.x / 2] : 42;
        };
        Field field(plan);
        SelectAreaByOrdinal(field.game, 1);
        EXPECT_EQ(CountCloseSlots(field.game), given.close) << given.what;
        EXPECT_EQ(field.game.state.closeSlots, given.close) << given.what;
        EXPECT_EQ(CountDenseSlots(field.game), given.dense) << given.what;
        EXPECT_EQ(field.game.state.closeSlots, given.dense) << given.what;
        EXPECT_EQ(CountBuiltUpSlots(field.game), given.builtUp) << given.what;
        EXPECT_EQ(field.game.state.closeSlots, given.builtUp) << given.what;
    }
}

}  // namespace
}  // namespace varnstride
