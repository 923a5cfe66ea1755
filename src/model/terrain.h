// What the ground of a cell is, and the counts over the six slots of an area by which rules judge
// it. Ground between the slots plays no part in any rule.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride {

bool IsOpen(const GroundCell& cell);
bool IsField(const GroundCell& cell);
bool IsShallow(const GroundCell& cell);
bool IsLake(const GroundCell& cell);
bool IsOrchard(const GroundCell& cell);
bool IsRough(const GroundCell& cell);
bool IsSwamp(const GroundCell& cell);
bool IsMarsh(const GroundCell& cell);  // swamp included
bool IsWoodland(const GroundCell& cell);
bool IsRiver(const GroundCell& cell);
bool IsVillage(const GroundCell& cell);
bool IsVineyard(const GroundCell& cell);
bool IsForest(const GroundCell& cell);
bool IsBuilding(const GroundCell& cell);
bool IsImpassable(const GroundCell& cell);
bool IsRocks(const GroundCell& cell);
bool IsTower(const GroundCell& cell);
bool IsTents(const GroundCell& cell);
bool HasPalisade(const GroundCell& cell);
bool IsBurning(const PlayCell& cell);
bool IsDense(const GroundCell& cell);    // forest, village, building, orchard or rocks
bool IsBuiltUp(const GroundCell& cell);  // village, building or forest

constexpr int kCloseTerrain = 3;  // an area with so many slots that are not open is close

bool IsNotOpen(const GroundCell& cell);

// How many of the six slots pass a test.
int CountSlotsThat(const Game& game, const AreaSlots& slots, bool (*test)(const GroundCell&));

// Counts over the six slots of currentAreaSlots, left in closeSlots as well.
int CountCloseSlots(Game& game);
int CountDenseSlots(Game& game);
int CountBuiltUpSlots(Game& game);

// The terrain line of the information bar for the cell in hand, without the area's verdict.
std::string DescribeTerrain(const Game& game, Cell cell);

}  // namespace varnstride
