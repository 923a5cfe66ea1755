// The searches of the model give what the plain scans give, on random states, to the last tie.
#include "bench/reference_scan.h"

#include <gtest/gtest.h>

#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"
#include "support/random_field.h"

namespace varnstride {
namespace {

constexpr unsigned kSeeds = 150;
constexpr int kLooksPerField = 12;

int Pick(std::mt19937& chance, int count) {
    return static_cast<int>(chance() % static_cast<unsigned>(count));
}

std::vector<int> ShadeOf(const Grid& grid) {
    std::vector<int> shade;
    for (int y = 0; y < grid.Height(); ++y) {
        for (int x = 0; x < grid.Width(); ++x)
            shade.push_back(grid.Shade({x, y}));
    }
    return shade;
}

// A unit of some army in hand, some cell selected, the modes of a reach set at random.
void TurnSomewhere(std::mt19937& chance, Game& game) {
    constexpr int kArmies[] = {kFrench, kFrench, kBritish, kPrussian};
    game.state.currentArmy = kArmies[Pick(chance, 4)];
    game.state.currentUnit = 1 + Pick(chance, 20);
    game.state.selectedCell = {Pick(chance, game.grid.Width()), Pick(chance, game.grid.Height())};
    game.state.targetCell = {Pick(chance, game.grid.Width()), Pick(chance, game.grid.Height())};
    game.state.roadMover = Pick(chance, 2) == 0;
    game.state.rangeKeepLit = Pick(chance, 3) == 0;
    game.state.ownAreaLeftOut = Pick(chance, 12) == 0;
    game.state.bombardmentMode = Pick(chance, 5) == 0 ? 1 : 0;
    game.turnLog.advanceDirection = 1 + Pick(chance, 6);
}

void CompareReach(Game& game) {
    std::vector<int> expected = ShadeOf(game.grid);
    ScanReach(game, expected);
    ShadeReach(game);
    EXPECT_EQ(ShadeOf(game.grid), expected);
}

void CompareAdvance(Game game) {
    const Cell expected = ScanAdvanceCell(game, ShadeOf(game.grid));
    FindAdvanceCell(game);
    EXPECT_EQ(game.state.advanceResultCell, expected)
        << "direction " << game.turnLog.advanceDirection;
}

void CompareCensus(Game& game) {
    Census expected = game.census;
    ScanCensusEnemy(game, expected);
    CensusEnemy(game);
    const Census& found = game.census;
    EXPECT_EQ(found.enemyCount, expected.enemyCount);
    EXPECT_EQ(found.censusSlotUnit, expected.censusSlotUnit);
    EXPECT_EQ(found.enemyLineHere, expected.enemyLineHere);
    EXPECT_EQ(found.enemyCavalryHere, expected.enemyCavalryHere);
    EXPECT_EQ(found.enemyGunsHere, expected.enemyGunsHere);
    EXPECT_EQ(found.enemyLeaderHere, expected.enemyLeaderHere);
    EXPECT_EQ(found.enemyHeavyHere, expected.enemyHeavyHere);
    EXPECT_EQ(found.enemyRoutedHere, expected.enemyRoutedHere);
    ScanCensusOwn(game, expected);
    CensusOwnAtTarget(game);
    EXPECT_EQ(found.ownGuns, expected.ownGuns);
    EXPECT_EQ(found.ownCavalry, expected.ownCavalry);
    EXPECT_EQ(found.ownLine, expected.ownLine);
    EXPECT_EQ(found.ownLeaders, expected.ownLeaders);
}

void CompareSlots(Game& game) {
    SelectArea(game);
    for (const Cell slot : game.state.currentAreaSlots) {
        EXPECT_EQ(FindEnemyInSlot(game, slot), ScanForEnemyInSlot(game, slot))
            << slot.x << "," << slot.y;
    }
}

TEST(ReferenceScan, AgreesWithTheModelOnRandomStates) {
    for (unsigned seed = 1; seed <= kSeeds && !::testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 chance(seed);
        const std::unique_ptr<Field> field = MakeRandomField(chance);
        Game& game = field->game;
        SelectAreaByOrdinal(game, 1);
        for (int look = 0; look < kLooksPerField; ++look) {
            TurnSomewhere(chance, game);
            CompareReach(game);
            CompareAdvance(game);
            CompareCensus(game);
            CompareSlots(game);
        }
    }
}

}  // namespace
}  // namespace varnstride
