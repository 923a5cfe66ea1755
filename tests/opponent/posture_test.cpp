// The computer's judgement of the battle, with the score on and beside every limit.
#include "opponent/posture.h"

#include <gtest/gtest.h>

#include "support/field.h"

namespace varnstride {
namespace {

using enum OpponentPosture;

struct PostureCase {
    int score;  // limits -300, -100, 100 and 300
    OpponentPosture ofScoringSide;
    OpponentPosture ofOtherSide;
};

constexpr PostureCase kPostures[] = {
    {-301, Assault, StandFast}, {-300, Assault, StandFast}, {-299, Assault, Cautious},
    {-101, Assault, Cautious},  {-100, Assault, Assault},   {-99, Contest, Contest},
    {99, Contest, Contest},     {100, Cautious, Assault},   {299, Cautious, Assault},
    {300, StandFast, Assault},
};

OpponentPosture PostureAt(int score, int army, int firstPlayer) {
    Field field({});
    Game& game = field.game;
    game.header.majorDefeatLimit = -300;
    game.header.minorDefeatLimit = -100;
    game.header.minorVictoryLimit = 100;
    game.header.majorVictoryLimit = 300;
    game.header.firstPlayer = firstPlayer;
    game.state.currentArmy = army;
    const int frenchScore = SideOf(firstPlayer) == Side::French ? score : -score;
    game.loss.alliedLossPoints = frenchScore * 10;
    TakePosture(game);
    EXPECT_EQ(game.state.victoryScore, score);
    return PostureOf(game);
}

TEST(Posture, FollowsTheScoreOfItsSide) {
    for (const PostureCase& given : kPostures) {
        SCOPED_TRACE(given.score);
        EXPECT_EQ(PostureAt(given.score, kFrench, kFrench), given.ofScoringSide);
        EXPECT_EQ(PostureAt(given.score, kPrussian, kFrench), given.ofOtherSide);
        EXPECT_EQ(PostureAt(given.score, kFrench, kBritish), given.ofOtherSide);
        EXPECT_EQ(PostureAt(given.score, kPrussian, kBritish), given.ofScoringSide);
    }
}

}  // namespace
}  // namespace varnstride
