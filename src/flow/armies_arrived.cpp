#include "flow/armies_arrived.h"

namespace varnstride {

unsigned ArmiesArrived(const Game& game) {
    constexpr int kCircle = kLastPlayingArmy + 1;
    unsigned arrived = 0;
    int army = game.header.firstPlayer;
    for (int step = 0; step < kCircle; ++step) {
        if (game.Army(army).present != 0) arrived |= 1U << army;
        if (army == game.state.turnCursor) break;
        army = (army + 1) % kCircle;
    }
    return arrived;
}

}  // namespace varnstride
