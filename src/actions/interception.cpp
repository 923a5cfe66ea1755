#include "actions/interception.h"

#include "actions/courier.h"
#include "model/areas.h"

namespace varnstride {
namespace {

int FirstFreeOwnSlot(const Game& game) {
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        if (!IsHeld(game, OwnSlot(game, slot))) return slot;
    }
    return -1;
}

void StopBeforeEnemy(Game& game) {
    GameState& state = game.state;
    game.InHand().actionPoints = 0;
    if (const int slot = FirstFreeOwnSlot(game); slot >= 0) {
        state.stoppedShort = 1;
        state.targetCell = OwnSlot(game, slot);
    } else {
        state.moveBlocked = 1;
        state.targetCell = game.InHand().Place();
    }
    ShowCourier(game, 45);
}

}  // namespace

void CheckInterception(Game& game) {
    GameState& state = game.state;
    state.moveBlocked = 0;
    const int via = game.atlas->ViaArea(game.grid.AreaOf(state.selectedCell),
                                        game.grid.AreaOf(state.targetCell));
    if (via == 0) return;
    SetAreaSlots(game, game.atlas->Row(via).Slots());
    state.moveCost = 2;
    state.stoppedShort = 0;
    if (EnemyPresent(game)) StopBeforeEnemy(game);
}

}  // namespace varnstride
