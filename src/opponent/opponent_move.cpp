#include "opponent/opponent_move.h"

#include "actions/entry.h"
#include "actions/interception.h"
#include "actions/move_sound.h"
#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {

bool TryMove(Game& game) {
    const UnitId id = game.InHandId();
    const Cell left = game.At(id).Place();
    VacateSlot(game, id);
    game.state.selectedSlot = 1;
    MoveIntoTargetArea(game);
    if (game.state.moveResult == 0) {
        ReclaimSlot(game, id);
        return false;
    }
    CloseUpAreaLeft(game, left);
    PlayMoveSound(game);
    return true;
}

bool ShunsEnemy(const Game& game) {
    const Unit& unit = game.InHand();
    const Census& census = game.census;
    if (census.enemyCount == 0) return false;
    return (IsFoot(unit.type) && census.enemyCavalryHere != 0) || unit.type == UnitType::Leader ||
           IsFieldGun(unit.type) ||
           (unit.type == UnitType::LightCavalry && census.enemyHeavyHere != 0) || unit.strength < 3;
}

void LookForInterception(Game& game) {
    game.state.moveBlocked = game.state.stoppedShort = 0;
    game.state.selectedCell = game.InHand().Place();
    if (game.InHand().actionPoints > 1) CheckInterception(game);
}

}  // namespace varnstride
