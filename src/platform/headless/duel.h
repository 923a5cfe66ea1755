// A battle that the computer plays for both sides, from a scenario or a saved battle to its end.
// Nobody is a person: every message is put away at once and no rule for a person's army applies.
// The driver plays duels to balance scenarios, the tests to look for rules that break.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "model/game.h"
#include "model/result.h"

namespace varnstride {

struct DuelPlan {
    std::string file;      // a scenario by its ending .scn, else a saved battle
    unsigned seed = 1815;  // the time of the first player turn; each later one is 1 more
    int turns = 0;         // game turns to play; 0 until the battle has ended
    bool check = false;    // look at the invariants after every pass
    std::string save;      // where the end is written, or the head of the next turn
};

// How the battle stood at the end of a game turn.
struct DuelTurn {
    int turn = 0;
    int score = 0;       // for the side that moves first
    int frenchLoss = 0;  // strength points
    int alliedLoss = 0;
};

struct DuelResult {
    unsigned seed = 0;
    int turns = 0;       // game turns begun
    bool ended = false;  // by the rules, not by DuelPlan::turns
    int level = 0;       // 0 a major defeat to 4 a major victory of the side that moves first
    bool frenchFirst = true;
    int score = 0;
    LossBlock loss;
    int frenchMorale = 0;  // percent
    int alliedMorale = 0;
    std::vector<DuelTurn> course;
    std::string broken;  // the first broken invariant and where; empty when all held
};

// Plays the duel to its end, or to the first broken invariant. Fails when the file cannot be read,
// is a turn of play by e-mail, or the end cannot be written.
Result<DuelResult> PlayDuel(const DuelPlan& plan, const AtlasCatalogue& atlases);

}  // namespace varnstride
