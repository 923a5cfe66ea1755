#include "opponent/opponent_turn.h"

namespace varnstride {
namespace {

constexpr int kQuatreBras = 1;
constexpr int kMontStJean = 7;
constexpr int kFrenchToNorthEast = 3;
constexpr int kAlliesToWest = 2;

}  // namespace

void AdjustAdvanceDirection(Game& game) {
    const int turn = game.header.savedTurn;
    int& direction = game.turnLog.advanceDirection;
    if (game.header.mapNumber == kQuatreBras && turn > 3) direction = kFrenchToNorthEast;
    if (game.header.mapNumber != kMontStJean || turn <= 10) return;
    const int army = game.state.currentArmy;
    if (army == kFrench || army == kBritish) direction = kFrenchToNorthEast;
    if (army == kPrussian) direction = kAlliesToWest;
}

}  // namespace varnstride
