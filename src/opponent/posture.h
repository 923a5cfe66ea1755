// The computer's one judgement of the whole battle, taken from the victory score at the head of its
// turn: it decides which passes may act and how units form up.
#pragma once

#include "model/game.h"

namespace varnstride {

enum class OpponentPosture {
    Assault = 1,    // behind
    Cautious = 2,   // ahead
    StandFast = 3,  // far ahead
    Contest = 4,    // about level
};

// Brings the score up to date and sets opponentPosture for the army in play. Until the passes are
// over opponentMark holds the army by which the side was told from the scoring one.
void TakePosture(Game& game);

inline OpponentPosture PostureOf(const Game& game) {
    return static_cast<OpponentPosture>(game.state.opponentPosture);
}

// Whether units go for the enemy.
inline bool SeeksBattle(const Game& game) {
    return PostureOf(game) == OpponentPosture::Assault ||
           PostureOf(game) == OpponentPosture::Contest;
}

}  // namespace varnstride
