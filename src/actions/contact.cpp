#include "actions/contact.h"

#include "actions/courier.h"
#include "actions/entry.h"
#include "actions/spotting.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/reach.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

// Guns and single skirmishers do not wait for horse.
bool FearsHorse(const Unit& defender, const Unit& mover) {
    if (!IsMountedOrMortar(mover.type)) return false;
    return defender.type == UnitType::HorseArtillery ||
           (defender.formation == Formation::OpenOrder && defender.strength == 1);
}

bool FrontFallsBack(const Unit& defender, const Unit& mover) {
    return defender.status < UnitStatus::Ordered || FearsHorse(defender, mover);
}

bool SupportFallsBack(const Unit& defender, const Unit& mover) {
    if (defender.strength > 1) return defender.status < UnitStatus::Unsteady;
    return defender.strength == 1 &&
           (defender.status < UnitStatus::Ordered || FearsHorse(defender, mover));
}

// The defender becomes the unit in hand for its move to targetCell; whether it went.
bool FallBack(Game& game, UnitId defender, int slot) {
    GameState& state = game.state;
    const UnitId mover = game.InHandId();
    const Cell left = game.At(defender).Place();
    state.currentArmy = defender.army;
    state.currentUnit = defender.index;
    state.selectedSlot = slot;
    state.retreatUnderFire = 1;
    VacateSlot(game, defender);
    MoveIntoTargetArea(game);
    const bool went = state.moveResult > 0;
    if (went) {
        game.At(defender).formation = Formation::NoFormation;
        CloseUpAreaLeft(game, left);
    } else {
        ReclaimSlot(game, defender);
    }
    state.currentArmy = mover.army;
    state.currentUnit = mover.index;
    return went;
}

// Horse goes after those who fall back, at no cost.
bool FollowUp(Game& game) {
    const UnitId mover = game.InHandId();
    const Cell left = game.InHand().Place();
    const int commandPoints = game.ArmyInPlay().commandPoints;
    VacateSlot(game, mover);
    MoveIntoTargetArea(game);
    if (game.state.moveResult == 0) {
        ReclaimSlot(game, mover);
        return false;
    }
    game.ArmyInPlay().commandPoints = commandPoints;
    CloseUpAreaLeft(game, left);
    SpotAfterMove(game);
    ShowCourier(game, 285);
    return true;
}

// Where the weak go: the way the mover makes for.
void FindFallBackArea(Game& game) {
    const Cell entered = game.InHand().Place();
    game.state.selectedCell = entered;
    ShadeReachWith(game, 1);
    FindAdvanceCell(game);
    game.state.selectedCell = entered;
    CensusEnemy(game);
}

void PressDefenders(Game& game) {
    const std::array<int, kSlotsPerSide> defenders = game.census.censusSlotUnit;
    const int army = game.battle.targetArmy;
    const bool follows = IsMountedOrMortar(game.InHand().type) && !game.state.twoStepMove;
    for (int slot = 1; slot <= kSlotsPerSide; ++slot) {
        const UnitId defender{army, defenders[static_cast<std::size_t>(slot - 1)]};
        if (slot > 1 && game.state.retreatUnderFire != 0) return;
        if (!defender || !IsOnMap(game, defender)) continue;
        const bool falls = slot == 1 ? FrontFallsBack(game.At(defender), game.InHand())
                                     : SupportFallsBack(game.At(defender), game.InHand());
        if (falls && FallBack(game, defender, slot) && follows && FollowUp(game)) return;
    }
}

}  // namespace

void SettleContact(Game& game) {
    const int slotTaken = game.state.moveResult;
    const int ownSlot = game.state.selectedSlot;
    FindFallBackArea(game);
    PressDefenders(game);
    game.state.moveResult = slotTaken;
    game.state.selectedSlot = ownSlot;
    game.state.retreatUnderFire = 0;
    game.InHand().actionPoints = 0;
}

void ForceSquares(Game& game) {
    for (int slot = 0; slot < kSlotsPerSide; ++slot) {
        const int index = FindEnemyInSlot(game, EnemySlot(game, slot));
        if (index == 0) continue;
        const int army = EnemyArmyOf(game, game.state.currentAreaSlots);
        Unit& enemy = game.At({army, index});
        const bool forms = IsInfantry(enemy.type) && enemy.formation < Formation::MarchColumn &&
                           enemy.quality < Quality::Conscript && enemy.status > UnitStatus::Shaken;
        if (!forms) continue;
        enemy.formation = Formation::Square;
        game.state.undoTargetFormation = static_cast<int>(Formation::Square);
    }
}

}  // namespace varnstride
