#include "model/dice.h"

#include <algorithm>

#include "model/dice_paths.h"

namespace varnstride {
namespace {

constexpr int kReplay = 2;

int Throw(Game& game, int sides) {
    if (DicePaths* paths = game.generator.Paths()) return paths->Throw(sides);
    return game.generator.Next() % sides;
}

}  // namespace

int Die(Game& game, int sides) {
    const int value = Throw(game, sides);
    game.person->Rolled(sides, value, false);
    return value;
}

int LoggedValue(Game& game, int value) {
    GameState& state = game.state;
    if (state.rollLogActive != 1 || state.gameMode == GameMode::Local) return value;
    if (state.rollCursor + 1 >= kRollLogSize) return value;
    ++state.rollCursor;
    std::int16_t& entry = game.turnLog.rollLog[static_cast<std::size_t>(state.rollCursor)];
    if (game.header.passMode == kReplay) return entry;
    entry = static_cast<std::int16_t>(value);
    return value;
}

int LoggedDie(Game& game, int sides) {
    const int value = LoggedValue(game, Throw(game, sides));
    game.person->Rolled(sides, value, true);
    return value;
}

bool LoggedDieShows(Game& game, int sides, int face) {
    if (DicePaths* paths = game.generator.Paths()) {
        return paths->Choose(CountChances(1, sides, face)) == 1;
    }
    return LoggedDie(game, sides) == face;
}

int LoggedOnes(Game& game, int dice, int sides) {
    if (DicePaths* paths = game.generator.Paths()) {
        return paths->Choose(CountChances(std::max(0, dice), sides, 1));
    }
    int ones = 0;
    for (int die = 0; die < dice; ++die) {
        if (Die(game, sides) == 1) ++ones;
    }
    return LoggedValue(game, ones);
}

}  // namespace varnstride
