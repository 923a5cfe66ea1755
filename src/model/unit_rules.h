// The small computations on a unit that all rules repeat: its status from its morale, the Action
// Points of a turn, and what a strength point of it is worth.
#pragma once

#include "model/game.h"

namespace varnstride {

// Status from the percentage of morale left; a routed unit loses its formation. Nothing happens to
// a unit without a maxMorale.
void RecomputeStatus(Unit& unit);

// The same after a loss: the status never rises.
void LowerStatus(Unit& unit);

// Takes points off the morale, which stops at 0, and lowers the status with it.
void LoseMorale(Unit& unit, int points);

// 0 to 2 Action Points for a turn under that visibility.
int ComputeActionPoints(const Unit& unit, int visibility);

// The worth of one strength point of the unit in victory points x 10: by type, quality and weapon,
// times maxMorale.
int ValueOfUnit(const Unit& unit);
// The same before maxMorale counts.
int ValueOfStrengthPoint(const Unit& unit);

// The first record of the army at that place, whatever its strength and arrival; 0 none.
int UnitAt(const Game& game, int army, Cell cell);

}  // namespace varnstride
