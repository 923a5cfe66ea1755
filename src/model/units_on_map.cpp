#include "model/units_on_map.h"

namespace varnstride {
namespace {

bool HasArrived(const Game& game, const Unit& unit) {
    return unit.strength > 0 && unit.arrivalTurn <= game.state.gameTurn;
}

void Unstand(Game& game, UnitId id) {
    const Cell place = game.At(id).Place();
    if (UnitStandingAt(game, place) == id) game.grid.SetStanding(place, {});
}

}  // namespace

bool IsOnMap(const Game& game, UnitId id) {
    const Unit& unit = game.At(id);
    if (!HasArrived(game, unit)) return false;
    return unit.arrivalTurn < game.state.gameTurn || UnitStandingAt(game, unit.Place()) == id;
}

UnitId UnitStandingAt(const Game& game, Cell cell) {
    if (cell == kNoCell || !game.grid.Holds(cell)) return {};
    return game.grid.Standing(cell);
}

void PlaceUnit(Game& game, UnitId id, Cell cell) {
    Unstand(game, id);
    game.At(id).SetPlace(cell);
    game.grid.SetStanding(cell, id);
    game.grid.At(cell).occupant = id.army + 1;
}

void VacateSlot(Game& game, UnitId id) {
    game.grid.At(game.At(id).Place()).occupant = 0;
}

void ReclaimSlot(Game& game, UnitId id) {
    game.grid.At(game.At(id).Place()).occupant = id.army + 1;
}

void ShiftUnit(Game& game, UnitId id, Cell cell) {
    VacateSlot(game, id);
    PlaceUnit(game, id, cell);
}

void StrikeDownUnit(Game& game, UnitId id) {
    Unstand(game, id);
    Unit& unit = game.At(id);
    unit.strength = 0;
    unit.morale = 0;
    unit.status = UnitStatus::Destroyed;
}

void DestroyUnit(Game& game, UnitId id) {
    StrikeDownUnit(game, id);
    game.At(id).SetPlace(kNoCell);
}

void FreeRecord(Game& game, UnitId id) {
    Unstand(game, id);
    Unit& unit = game.At(id);
    unit.strength = unit.initialStrength = 0;
    unit.SetPlace(kNoCell);
}

void LeadOffMap(Game& game, UnitId id) {
    Unstand(game, id);
    game.At(id).arrivalTurn = kLeftByExit;
}

void FindStandingUnits(Game& game, unsigned armiesArrived) {
    game.grid.ClearStanding();
    for (int army = 0; army < kArmyCount; ++army) {
        const bool arrived = (armiesArrived >> army & 1U) != 0;
        for (int index = kUnitsPerArmy - 1; index > 0; --index) {
            const Unit& unit = game.At({army, index});
            const bool stands =
                HasArrived(game, unit) && (unit.arrivalTurn < game.state.gameTurn || arrived);
            if (stands && game.grid.Holds(unit.Place()) && unit.Place() != kNoCell) {
                game.grid.SetStanding(unit.Place(), {army, index});
            }
        }
    }
}

}  // namespace varnstride
