#include "actions/pinning.h"

#include "model/areas.h"
#include "model/terrain.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool Pins(const Unit& unit) {
    return unit.status > UnitStatus::Shaken && (IsFoot(unit.type) || IsMountedOrMortar(unit.type));
}

bool CanBePinned(const Unit& unit) {
    return unit.actionPoints > 0 && unit.status > UnitStatus::Shaken &&
           (IsFoot(unit.type) || unit.type == UnitType::FieldArtillery);
}

UnitId PresentUnitIn(const Game& game, Cell slot) {
    const UnitId id = UnitStandingAt(game, slot);
    const bool counts = id && SideOf(id.army) == game.EnemySide() && IsOnMap(game, id) &&
                        game.Army(id.army).present != 0;
    return counts ? id : UnitId{};
}

// An army's records are walked by index until the unit of the second slot: a front unit of the same
// army and a higher index is not seen any more.
int PinLevel(const Game& game) {
    const UnitId front = PresentUnitIn(game, EnemySlot(game, 0));
    const UnitId support = PresentUnitIn(game, EnemySlot(game, 1));
    const bool frontSeen =
        front && !(support && support.army == front.army && support.index < front.index);
    const bool frontPins = frontSeen && Pins(game.At(front));
    const bool supportPins = support && Pins(game.At(support));
    // Armies are walked in order and each overwrites what the one before has left.
    if (frontPins && supportPins) return front.army > support.army ? 1 : 2;
    if (supportPins) return 2;
    return frontPins ? 1 : 0;
}

void PinSlot(Game& game, int slot) {
    const UnitId id = UnitStandingAt(game, OwnSlot(game, slot));
    if (!id || id.army != game.state.currentArmy || !IsOnMap(game, id)) return;
    if (CanBePinned(game.At(id))) game.At(id).actionPoints = 0;
}

}  // namespace

void StartTurnAreaPass(Game& game) {
    for (int ordinal = 1; ordinal <= game.atlas->AreaCount(); ++ordinal) {
        SelectAreaByOrdinal(game, ordinal);
        CountDenseSlots(game);
        game.state.pinLevel = PinLevel(game);
        if (game.state.ownSlotsFilled > 0 && game.state.pinLevel > 0) {
            PinSlot(game, 0);
            if (game.state.pinLevel == 2 && game.state.closeSlots < kCloseTerrain) {
                PinSlot(game, 1);
            }
        }
        game.state.pinLevel = 0;
    }
}

}  // namespace varnstride
