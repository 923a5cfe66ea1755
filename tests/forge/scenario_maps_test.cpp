// What a drawn map becomes: area numbers, pictures of the right kinds, sides of roads and water,
// bridges, and the marks of labels, objectives and units.
#include <gtest/gtest.h>

#include "atlas_texts.h"
#include "forge/hex_walk.h"
#include "forge/scenario_build.h"
#include "model/tile_sheets.h"
#include "toy_scenario.h"

namespace varnstride {
namespace {

constexpr unsigned kNorthEast = 1;
constexpr unsigned kEast = 2;
constexpr unsigned kSouthEast = 4;
constexpr unsigned kSouthWest = 8;
constexpr unsigned kWest = 16;
constexpr unsigned kNorthWest = 32;

int Paved(unsigned sides) {
    return kPavedRoad + static_cast<int>(sides);
}
int Track(unsigned sides) {
    return kTrack + static_cast<int>(sides);
}
int Stream(unsigned sides) {
    return kStream + static_cast<int>(sides);
}

struct GroundCase {
    Cell cell;
    int areaId;
    int band;
    int firstTile;
    int lastTile;
};

TEST(ScenarioMaps, CellsShowWhatIsDrawn) {
    const BattleFile file = Compiled(ToyText(), ToyAtlases());
    constexpr GroundCase kCases[] = {
        {{0, 0}, 21, 0, 5, 5},   {{3, 0}, 21, 0, 42, 47}, {{4, 1}, 21, 0, 42, 47},
        {{5, 0}, 21, 0, 3, 3},   {{5, 1}, 21, 0, 3, 3},   {{2, 3}, 21, 0, 1, 1},
        {{9, 2}, 22, 2, 24, 26}, {{11, 3}, 22, 2, 5, 5},  {{8, 5}, 22, 2, 6, 8},
        {{1, 7}, 21, 0, 15, 17}, {{5, 7}, 21, 0, 4, 4},   {{9, 7}, 22, 5, 5, 5},
        {{10, 7}, 22, 4, 5, 5},  {{11, 7}, 22, 3, 5, 5},  {{6, 7}, 22, 1, 4, 4},
    };
    for (const GroundCase& expected : kCases) {
        SCOPED_TRACE(SourceCell(expected.cell));
        const MapCell& cell = CellOf(file, expected.cell);
        EXPECT_EQ(cell.areaId, expected.areaId);
        EXPECT_EQ(cell.groundTile / kGroundTilesPerBand, expected.band);
        EXPECT_GE(cell.terrainTile, expected.firstTile);
        EXPECT_LE(cell.terrainTile, expected.lastTile);
    }
    EXPECT_GE(CellOf(file, {8, 2}).overlayTile, 53);
    EXPECT_LE(CellOf(file, {8, 3}).overlayTile, 69);
    EXPECT_EQ(CellOf(file, {9, 3}).overlayTile, kNoOverlay);
}

struct FeatureCase {
    Cell cell;
    int featureTile;
    int roadTile;
};

TEST(ScenarioMaps, RoadsAndWaterJoinTheirNeighbours) {
    const BattleFile file = Compiled(ToyText(), ToyAtlases());
    const FeatureCase cases[] = {
        {{0, 4}, Paved(kEast), kNoRoad},
        {{1, 4}, Paved(kEast | kWest), kNoRoad},
        {{2, 4}, Paved(kEast | kWest | kNorthEast), kNoRoad},  // where the track comes in
        {{2, 3}, Track(kSouthWest | kNorthWest), kNoRoad},
        {{2, 2}, Track(kSouthEast | kNorthEast), kNoRoad},
        {{2, 0}, Track(kSouthEast), kNoRoad},
        {{11, 4}, Paved(kWest), kNoRoad},
        {{3, 3}, 0, kNoRoad},
        {{5, 0}, Stream(kSouthEast), kNoRoad},
        {{5, 1}, Stream(kNorthWest | kSouthWest), kNoRoad},
        {{6, 3}, 0, kNoRoad},
        {{5, 4}, Stream(kNorthEast | kSouthEast), kBridgeEastWest},
        {{5, 6}, Stream(kNorthEast | kSouthEast), kNoRoad},                // into the lake
        {{5, 7}, kRiver + static_cast<int>(kEast | kNorthWest), kNoRoad},  // whose shore runs on
    };
    for (const FeatureCase& expected : cases) {
        SCOPED_TRACE(SourceCell(expected.cell));
        const MapCell& cell = CellOf(file, expected.cell);
        EXPECT_EQ(cell.featureTile, expected.featureTile);
        EXPECT_EQ(cell.roadTile, expected.roadTile);
    }
}

TEST(ScenarioMaps, ABridgeRunsAsItsRoadDoes) {
    struct {
        const char* road;
        int roadTile;
    } const cases[] = {
        {"0,4 11,4", kBridgeEastWest},
        {"4,5 5,4 5,3", kBridgeNorthEastSouthWest},
        {"4,3 5,4 5,5", kBridgeNorthWestSouthEast},
    };
    for (const auto& expected : cases) {
        const std::string text = WithSlips(ToyText(), {{"0,4 11,4", expected.road}});
        EXPECT_EQ(CellOf(Compiled(text, ToyAtlases()), {5, 4}).roadTile, expected.roadTile)
            << expected.road;
    }
}

TEST(ScenarioMaps, MarksAndUnitsStandInTheirCells) {
    const BattleFile file = Compiled(ToyText(), ToyAtlases());
    EXPECT_EQ(CellOf(file, {3, 0}).labelIndex, 1);
    EXPECT_EQ(CellOf(file, {9, 2}).labelIndex, 2);
    EXPECT_EQ(file.labels[2].labelStyleBlock, 2);
    EXPECT_EQ(CellOf(file, {9, 2}).objective, 2);
    EXPECT_EQ(CellOf(file, {6, 5}).objective, 8);
    EXPECT_EQ(CellOf(file, {1, 1}).occupant, kFrench + 1);
    EXPECT_EQ(CellOf(file, {10, 6}).occupantMirror, kPrussian + 1);
    EXPECT_EQ(CellOf(file, {2, 4}).occupant, 0);  // comes on turn 2
    // Area 22 begins to the east of (5,2): north-east, east and south-east of (5,1).
    EXPECT_EQ(CellOf(file, {5, 2}).borderTile, 29);
    EXPECT_EQ(CellOf(file, {5, 1}).borderTile, 21);
    EXPECT_EQ(CellOf(file, {11, 2}).borderTile, 0);

    const ArmyUnits& french = file.units[kFrench];
    EXPECT_EQ(french[1].formation, Formation::NoFormation);
    EXPECT_EQ(french[2].outOfCommand, 1);
    EXPECT_EQ(french[2].fixedUntilTurn, 3);
    EXPECT_EQ(french[3].arrivalTurn, 2);
    EXPECT_EQ(french[3].arrivalChance, 80);
    EXPECT_EQ(french[3].visible, 1);
    const ArmyUnits& prussian = file.units[kPrussian];
    EXPECT_EQ(prussian[4].ammunition, 5);
    EXPECT_EQ(prussian[5].ammunition, kFullAmmunition);
    EXPECT_EQ(prussian[5].morale, 11);
    EXPECT_EQ(prussian[5].maxMorale, 20);
    EXPECT_EQ(prussian[5].status, UnitStatus::Shaken);
    EXPECT_EQ(file.time.clockField, 905);
    EXPECT_EQ(file.armies[kFrench].hasGroupAssignments, 1);
    EXPECT_EQ(file.armies[kPrussian].hasGroupAssignments, 1);
}

TEST(HexWalk, IsAShortestWayOfNeighboursInsideTheGrid) {
    constexpr int kColumns = 9;
    constexpr int kRows = 8;
    constexpr int kCells = kColumns * kRows;
    for (int pair = 0; pair < kCells * kCells; ++pair) {
        const Cell from{pair / kCells % kColumns, pair / kCells / kColumns};
        const Cell to{pair % kCells % kColumns, pair % kCells / kColumns};
        const std::vector<Cell> walk = HexWalk(from, to, kColumns);
        ASSERT_EQ(walk.front(), from);
        ASSERT_EQ(walk.back(), to);
        ASSERT_EQ(static_cast<int>(walk.size()), HexDistance(from, to) + 1);
        for (std::size_t step = 1; step < walk.size(); ++step) {
            ASSERT_EQ(HexDistance(walk[step - 1], walk[step]), 1);
            ASSERT_GE(walk[step].x, 0);
            ASSERT_LT(walk[step].x, kColumns);
        }
    }
}

}  // namespace
}  // namespace varnstride
