#include "opponent/posture.h"

#include "model/score.h"

namespace varnstride {
namespace {

// The score is told from the side of firstPlayer, whichever of its armies that is.
int ArmyOfSide(const Game& game) {
    if (game.state.currentArmy == kFrench) return kFrench;
    return game.header.firstPlayer > kFrench ? game.header.firstPlayer : kBritish;
}

bool IsBetweenMinorLimits(const ScenarioHeader& limits, int score) {
    return score > limits.minorDefeatLimit && score < limits.minorVictoryLimit;
}

// A later test overrides an earlier one.
OpponentPosture PostureOfScoringSide(const ScenarioHeader& limits, int score) {
    OpponentPosture posture = OpponentPosture::Assault;
    if (score >= limits.majorVictoryLimit) posture = OpponentPosture::StandFast;
    if (score <= limits.minorDefeatLimit) posture = OpponentPosture::Assault;
    if (score >= limits.minorVictoryLimit && score < limits.majorVictoryLimit) {
        posture = OpponentPosture::Cautious;
    }
    return IsBetweenMinorLimits(limits, score) ? OpponentPosture::Contest : posture;
}

// The mirror of the above, save that a score exactly on minorDefeatLimit passes no test.
OpponentPosture PostureOfOtherSide(const ScenarioHeader& limits, int score) {
    OpponentPosture posture = OpponentPosture::Assault;
    if (score <= limits.majorDefeatLimit) posture = OpponentPosture::StandFast;
    if (score >= limits.minorVictoryLimit) posture = OpponentPosture::Assault;
    if (score > limits.majorDefeatLimit && score < limits.minorDefeatLimit) {
        posture = OpponentPosture::Cautious;
    }
    return IsBetweenMinorLimits(limits, score) ? OpponentPosture::Contest : posture;
}

}  // namespace

void TakePosture(Game& game) {
    ComputeVictoryScore(game);
    const int army = ArmyOfSide(game);
    const bool scores = army == game.header.firstPlayer;
    const int score = game.state.victoryScore;
    const OpponentPosture posture =
        scores ? PostureOfScoringSide(game.header, score) : PostureOfOtherSide(game.header, score);
    game.state.opponentMark = army;
    game.state.opponentPosture = static_cast<int>(posture);
}

}  // namespace varnstride
