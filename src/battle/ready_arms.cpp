#include "battle/ready_arms.h"

#include "model/areas.h"
#include "model/units_on_map.h"

namespace varnstride {

bool IsReadyToAttack(const Game& game, UnitId id) {
    if (!id || id.army != game.state.currentArmy || !IsOnMap(game, id)) return false;
    const Unit& unit = game.At(id);
    return (unit.ammunition > 0 || IsMounted(unit.type)) && unit.status > UnitStatus::Shaken;
}

ReadyArms ArmsReady(const Game& game) {
    ReadyArms arms;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId id = UnitStandingAt(game, OwnSlot(game, slot));
        if (!IsReadyToAttack(game, id)) continue;
        const UnitType type = game.At(id).type;
        if (type == UnitType::LightInfantry) arms.light = true;
        if (IsBetween(type, UnitType::LineInfantry, UnitType::DragoonsDismounted)) arms.line = true;
        if (IsMounted(type)) arms.cavalry = true;
        if (IsFieldGun(type)) arms.guns = true;
    }
    return arms;
}

}  // namespace varnstride
