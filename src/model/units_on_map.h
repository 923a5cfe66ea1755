// Who stands where. A unit is on the map when it has strength and its turn of arrival has come; a
// unit due this very turn only once it has been placed. The grid keeps the unit of each cell, so
// that nobody is searched for: every change of a unit's place, death or leaving goes through here.
#pragma once

#include "model/game.h"
#include "model/index_range.h"

namespace varnstride {

// The record numbers that loops over an army take.
inline IndexRange UnitIndices(const Game& game) {
    return {1, game.state.unitLimit};
}

bool IsOnMap(const Game& game, UnitId id);

// The unit of any army that stands in the cell; none for a cell off the grid.
UnitId UnitStandingAt(const Game& game, Cell cell);

// Stands the unit in the cell and marks the slot as taken.
void PlaceUnit(Game& game, UnitId id, Cell cell);

// Marks the slot of the unit as free, or as taken again, while the unit itself stays where it is.
void VacateSlot(Game& game, UnitId id);
void ReclaimSlot(Game& game, UnitId id);

// Moves a unit to another slot, freeing the one that it held.
void ShiftUnit(Game& game, UnitId id, Cell cell);

// Strikes a unit down: strength, morale and status 0. Its slot is left to who comes next, the
// record keeps the place where it fell until DestroyUnit. The slot's mark is left to the caller.
void StrikeDownUnit(Game& game, UnitId id);

// Takes a unit off the map for good: strength, morale, status and place 0. The slot's mark is left
// to the caller, who may have cleared it before.
void DestroyUnit(Game& game, UnitId id);

// Gives the record of a unit that another has taken in back for new ones.
void FreeRecord(Game& game, UnitId id);

// Leads a unit off by an exit: it keeps its strength and the cell that it left from.
void LeadOffMap(Game& game, UnitId id);

// Works out who stands where from the records. Units of armies whose bit is set in armiesArrived
// (1 << army) that are due this very turn have been placed already; the others still wait.
void FindStandingUnits(Game& game, unsigned armiesArrived);

}  // namespace varnstride
