#include "model/areas.h"

#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kMontStJean = 7;

int FilledOwnSlots(const Game& game) {
    int filled = 0;
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        if (IsHeld(game, OwnSlot(game, slot))) filled = slot + 1;
    }
    return filled;
}

int AlliedEnemyArmy(const Game& game, int occupant) {
    switch (game.header.mapNumber) {
        case 1:
        case 2: return kBritish;
        case 3:
        case 4:
        case 8: return kPrussian;
        case kMontStJean:
            if (occupant == kBritish + 1) return kBritish;
            if (occupant == kPrussian + 1) return kPrussian;
            return -1;
        default: return -1;
    }
}

bool ClosesUp(const Game& game, UnitId id) {
    if (!id || SideOf(id.army) != game.OwnSide()) return false;
    if (id.army != kFrench && game.Army(id.army).present == 0) return false;
    return IsOnMap(game, id) && game.At(id).type != kNeverClosesUp;
}

// The unit in one own slot steps up into a free one before it.
void StepUp(Game& game, int from, int to) {
    const Cell slot = OwnSlot(game, from);
    const UnitId unit = UnitStandingAt(game, slot);
    if (ClosesUp(game, unit)) ShiftUnit(game, unit, OwnSlot(game, to));
}

}  // namespace

void SelectAreaByOrdinal(Game& game, int ordinal) {
    game.state.currentAreaSlots = game.atlas->Row(ordinal).Slots();
    game.state.ownSlotsFilled = FilledOwnSlots(game);
    if (IsHeld(game, FirstOwnSlot(game))) game.state.selectedCell = FirstOwnSlot(game);
}

void SelectArea(Game& game) {
    const int ordinal = game.grid.AreaOf(game.state.selectedCell);
    if (ordinal > 0) SelectAreaByOrdinal(game, ordinal);
}

void LoadOwnSlots(Game& game) {
    const int ordinal = game.grid.AreaOf(game.state.selectedCell);
    if (ordinal == 0) return;
    const AreaSlots slots = game.atlas->Row(ordinal).Slots();
    const std::size_t first = game.OwnSide() == Side::French ? 0 : kSlotsPerSide;
    for (std::size_t slot = 0; slot < kSlotsPerSide; ++slot) {
        game.state.currentAreaSlots[first + slot] = slots[first + slot];
        game.state.ownSlotTaken[slot] = IsHeld(game, slots[first + slot]);
    }
}

void SetAreaSlots(Game& game, const AreaSlots& slots) {
    game.state.currentAreaSlots = slots;
}

Cell SlotOf(const AreaSlots& slots, Side side, int slot) {
    return slots[static_cast<std::size_t>(slot + (side == Side::French ? 0 : kSlotsPerSide))];
}

Cell OwnSlot(const Game& game, int slot) {
    return SlotOf(game.state.currentAreaSlots, game.OwnSide(), slot);
}

Cell EnemySlot(const Game& game, int slot) {
    return SlotOf(game.state.currentAreaSlots, game.EnemySide(), slot);
}

bool IsHeld(const Game& game, Cell slot) {
    return game.grid.Holds(slot) && game.grid.At(slot).occupant > 0;
}

bool EnemyPresent(const Game& game) {
    return IsHeld(game, FirstEnemySlot(game));
}

int EnemyArmyOf(const Game& game, const AreaSlots& slots) {
    const Cell first = SlotOf(slots, game.EnemySide(), 0);
    if (game.EnemySide() == Side::French) return IsHeld(game, first) ? kFrench : -1;
    if (!IsHeld(game, first)) return -1;
    return AlliedEnemyArmy(game, game.grid.At(first).occupant);
}

int FindEnemyInSlot(const Game& game, Cell cell) {
    const int army =
        game.EnemySide() == Side::French ? kFrench : EnemyArmyOf(game, game.state.currentAreaSlots);
    const UnitId unit = UnitStandingAt(game, cell);
    if (!unit || unit.army != army) return 0;
    const Unit& record = game.At(unit);
    const bool fights =
        record.initialStrength > 0 && IsFighting(record.type) && IsOnMap(game, unit);
    return fights ? unit.index : 0;
}

void CloseUpArea(Game& game) {
    const std::array<bool, kSlotsPerSide> taken = game.state.ownSlotTaken;
    if (!taken[0] && taken[1]) {
        StepUp(game, 1, 0);
        if (taken[2]) StepUp(game, 2, 1);
    } else if (!taken[1] && taken[2]) {
        StepUp(game, 2, 1);
    }
}

void CloseUpAreaLeft(Game& game, Cell left) {
    game.state.selectedCell = left;
    LoadOwnSlots(game);
    CloseUpArea(game);
}

}  // namespace varnstride
