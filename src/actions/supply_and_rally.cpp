#include "actions/supply_and_rally.h"

#include <vector>

#include "actions/courier.h"
#include "actions/unit_in_hand.h"
#include "model/areas.h"
#include "model/census.h"
#include "model/dice.h"
#include "model/reach.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

constexpr double kRalliedFromShaken = 0.65;
constexpr double kRalliedFromRouted = 0.45;
constexpr double kFailedRally = 0.35;

int ShareOf(int maxMorale, double share) {
    return static_cast<int>(maxMorale * share);
}

bool FriendStandsAt(Game& game, Cell cell) {
    game.state.targetCell = cell;
    CensusOwnAtTarget(game);
    const Census& census = game.census;
    return census.ownGuns > 0 || census.ownCavalry > 0 || census.ownLine > 0;
}

// Every lit area is asked once.
bool FriendWithinReach(Game& game) {
    std::vector<Cell> places;
    AreaSet asked;
    game.grid.ForEachLit([&](Cell cell) {
        const int ordinal = game.grid.AreaOf(cell);
        if (ordinal == 0 || asked.Has(ordinal)) return;
        asked.Add(ordinal);
        places.push_back(cell);
    });
    for (Cell place : places) {
        if (FriendStandsAt(game, place)) return true;
    }
    return false;
}

void ShowUnitRestored(Game& game) {
    game.state.selectedCell = game.InHand().Place();
    ShowUnitPanels(game);
    game.state.selectedCell = game.InHand().Place();
    ShadeReach(game);
    game.person->Redraw(View::Map);
}

}  // namespace

void RallyOneStep(Unit& unit) {
    const bool shaken = unit.status == UnitStatus::Shaken;
    unit.morale = ShareOf(unit.maxMorale, shaken ? kRalliedFromShaken : kRalliedFromRouted);
    unit.status = shaken ? UnitStatus::Unsteady : UnitStatus::Shaken;
}

void TakeOrderAgain(Game& game) {
    Unit& unit = game.InHand();
    game.state.selectedCell = unit.Place();
    SelectArea(game);
    if (CountBuiltUpSlots(game) >= 2) return;
    if (IsFoot(unit.type)) unit.formation = Formation::Line;
    if (IsMountedOrMortar(unit.type)) unit.formation = Formation::AttackColumn;
}

void RestoreShaken(Unit& unit) {
    RallyOneStep(unit);
    unit.actionPoints = 0;
}

bool TryToRestoreRouted(Unit& unit, int throwOfNerve) {
    const int fullMorale = unit.maxMorale > 0 ? unit.morale / unit.maxMorale : 0;
    if (fullMorale * throwOfNerve <= 1) return false;
    RallyOneStep(unit);
    unit.actionPoints = 0;
    return true;
}

bool ResupplyUnit(Game& game) {
    Unit& unit = game.InHand();
    const Cell selected = game.state.selectedCell;
    const Cell target = game.state.targetCell;
    game.state.selectedCell = unit.Place();
    ShadeReachWith(game, 1);
    const bool found = FriendWithinReach(game);
    game.state.selectedCell = selected;
    game.state.targetCell = target;
    unit.actionPoints = 0;
    if (!found) {
        game.person->Play(Sound::Ding);
        ShowCourier(game, 297);
        return false;
    }
    --game.ArmyInPlay().commandPoints;
    unit.ammunition = kFullAmmunition;
    ShowUnitRestored(game);
    return true;
}

void RallyShaken(Game& game) {
    Unit& unit = game.InHand();
    if (unit.strength <= 0) return;
    game.state.selectedCell = unit.Place();
    CensusEnemy(game);
    if (game.census.enemyCount > 0) {
        ShowCourier(game, 17);
        game.person->Play(Sound::Ding);
        return;
    }
    --game.ArmyInPlay().commandPoints;
    RestoreShaken(unit);
    ShowUnitRestored(game);
    if (IsFoot(unit.type)) game.person->Play(Sound::Rally3);
    if (IsMountedOrMortar(unit.type)) game.person->Play(Sound::Rally2);
    ShowCourier(game, 16);
}

void RallyRouted(Game& game) {
    Unit& unit = game.InHand();
    const int throwOfNerve = Die(game, 8) + 1;
    unit.actionPoints = 0;
    if (TryToRestoreRouted(unit, throwOfNerve)) {
        TakeOrderAgain(game);
        ShowUnitRestored(game);
        ShowCourier(game, 269);
    } else {
        unit.formation = Formation::NoFormation;
        unit.morale = ShareOf(unit.maxMorale, kFailedRally);
        ShowUnitRestored(game);
        ShowCourier(game, 18);
    }
}

}  // namespace varnstride
