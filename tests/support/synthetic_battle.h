// Battles made up for tests and benchmarks: one as large as they come, and files that hold random
// values wherever the layout allows any.
#pragma once

#include <memory>
#include <random>

#include "files/battle_file.h"
#include "support/field.h"

namespace varnstride {

// 121 x 91 cells in 105 areas with 32 links each; 599 records a side, of which 315 hold every slot
// and the others have yet to come. A French gun is in hand.
std::unique_ptr<Field> MakeLargeBattle();

// The same map with 300 units a side of all arms, three to an area and steady, in contact in 100
// areas, the army in play the French.
std::unique_ptr<Field> MakeLargeMelee();

// Gives a field that a test has laid out what a file needs besides: a clock, the armies' turns, a
// direction of advance. It is turn 1 of 9, and the French move first.
void MakeSavable(Game& game);

struct RandomBattle {
    std::unique_ptr<Field> field;
    BattleFile file;  // sound by the atlas of the field
};

// A field in a random state as a file. Fields that no check limits, reserved ones, texts, and what
// stands behind the end of a text hold random values.
RandomBattle MakeRandomBattle(std::mt19937& engine);

}  // namespace varnstride
