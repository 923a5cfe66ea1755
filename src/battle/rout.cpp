#include "battle/rout.h"

#include "actions/entry.h"
#include "actions/losses.h"
#include "battle/blows.h"
#include "battle/loss_notice.h"
#include "battle/pairing.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

void TakeInHand(Game& game, UnitId id) {
    game.state.currentArmy = id.army;
    game.state.currentUnit = id.index;
}

// The target's reach, of which the attacker chooses; targetCell.
void FindWayOut(Game& game, UnitId attacker, UnitId target) {
    TakeInHand(game, target);
    game.state.selectedCell = game.At(target).Place();
    game.At(target).actionPoints = 1;
    ShadeReach(game);
    TakeInHand(game, attacker);
    FindAdvanceCell(game);
    game.state.targetCell = game.state.advanceResultCell;
}

// The units of the target's army in its area, slot by slot.
std::array<UnitId, kSlotsPerSide> DefendersOf(Game& game, UnitId target) {
    game.state.selectedCell = game.At(target).Place();
    CensusEnemy(game);
    std::array<UnitId, kSlotsPerSide> defenders;
    const int ordinal = game.grid.AreaOf(game.state.selectedCell);
    if (ordinal == 0) return defenders;
    const AreaSlots slots = game.atlas->Row(ordinal).Slots();
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const UnitId id = UnitStandingAt(game, SlotOf(slots, game.EnemySide(), slot));
        if (id && id.army == target.army) defenders[static_cast<std::size_t>(slot)] = id;
    }
    return defenders;
}

void Run(Game& game, UnitId id, int slot) {
    const Cell left = game.At(id).Place();
    TakeInHand(game, id);
    game.state.selectedSlot = slot;
    game.state.retreatUnderFire = 1;
    VacateSlot(game, id);
    CensusOwnAtTarget(game);
    MoveIntoTargetArea(game);
    if (game.state.moveResult == 0) {
        ReclaimSlot(game, id);
        return;
    }
    game.battle.resultMark = 0;
    game.At(id).formation = Formation::NoFormation;
    CloseUpAreaLeft(game, left);
}

bool IsTakenPrisoner(Game& game, const Unit& unit) {
    if (unit.morale > 0 || unit.strength == 0) return false;
    game.state.targetCell = unit.Place();
    CensusOwnAtTarget(game);
    return game.census.ownLine > 0 || game.census.ownCavalry > 0;
}

void ShowSurrender(Game& game, UnitId prisoner) {
    const UnitId captor = game.InHandId();
    const Cell place = game.At(prisoner).Place();
    TakeInHand(game, prisoner);
    game.state.selectedCell = place;
    ShadeReachWith(game, 0);
    TakeInHand(game, captor);
    game.grid.At(place).highlight = 1;
    game.person->Redraw(View::CentreOnSelected);
    ShowLossNotice(game, {kSurrenderedUnitReport, "Surrendered Unit Report"}, prisoner,
                   game.At(prisoner).strength);
    game.grid.At(place).highlight = 0;
}

}  // namespace

void RunTheRouted(Game& game) {
    const UnitId attacker = game.InHandId();
    const UnitId target = TargetId(game);
    if (game.At(target).status != UnitStatus::Routed || game.state.bombardmentMode != 0) return;
    FindWayOut(game, attacker, target);
    const std::array<UnitId, kSlotsPerSide> defenders = DefendersOf(game, target);
    for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
        const UnitId id = defenders[static_cast<std::size_t>(slot - 1)];
        if (id && game.At(id).status == UnitStatus::Routed) Run(game, id, slot);
    }
    TakeInHand(game, attacker);
    game.At(attacker).actionPoints = 0;
    game.state.retreatUnderFire = game.state.selectedSlot = 0;
}

void TakeSurrender(Game& game) {
    const UnitId id = TargetId(game);
    Unit& prisoner = game.At(id);
    if (!IsTakenPrisoner(game, prisoner)) return;
    ShowSurrender(game, id);
    const int loss = game.battle.surrenderLoss = prisoner.strength;
    const Cell left = prisoner.Place();
    VacateSlot(game, id);
    DestroyUnit(game, id);
    CloseUpArmy(game, id.army, left);
    BookLoss(game, id.army, loss, ValueOfUnit(prisoner));
}

}  // namespace varnstride
