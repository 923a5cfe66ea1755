// The atlas: bounds of areas, the via of a link, the order of battles.
#include "model/atlas.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace varnstride {
namespace {

TEST(AreaRow, BoundsAreStrictAndMayBeAbsent) {
    AreaRow row;
    EXPECT_TRUE(row.Holds({0, 0}));
    row.xAbove = 8;
    row.xBelow = 18;
    row.yBelow = 5;
    EXPECT_FALSE(row.Holds({8, 2}));
    EXPECT_TRUE(row.Holds({9, 0}));
    EXPECT_TRUE(row.Holds({17, 4}));
    EXPECT_FALSE(row.Holds({18, 4}));
    EXPECT_FALSE(row.Holds({17, 5}));
    row.yAbove = 0;
    EXPECT_FALSE(row.Holds({9, 0}));
}

TEST(Atlas, KnowsTheAreaThatALinkPassesThrough) {
    const Atlas atlas(4, std::vector<AreaRow>(3),
                      {{1, 3, FirstStep::None, SecondStep::Open, 2, false},
                       {3, 1, FirstStep::Open, SecondStep::None, 0, false}});
    EXPECT_EQ(atlas.ViaArea(1, 3), 2);
    EXPECT_EQ(atlas.ViaArea(3, 1), 0);
    EXPECT_EQ(atlas.ViaArea(1, 2), 0);
}

TEST(Atlas, BattlesAreFoughtByOrdinalButForOneOfQuatreBras) {
    std::vector<int> order(34);
    std::iota(order.begin(), order.end(), 1);
    EXPECT_EQ(Atlas(2, std::vector<AreaRow>(34), {}).BattleOrder(), order);
    order[15] = 18;  // area 18 before areas 16 and 17
    order[16] = 16;
    order[17] = 17;
    EXPECT_EQ(Atlas(1, std::vector<AreaRow>(34), {}).BattleOrder(), order);
}

}  // namespace
}  // namespace varnstride
