// What must hold between the sections of a scenario once all are read: who opens the turn, and
// where units stand. Messages name the line of the unit.
#pragma once

#include "forge/scenario_build.h"

namespace varnstride {

void CheckScenario(const ScenarioBuild& build);

// Whether the unit stands on the map when the battle opens.
bool StandsAtStart(const BattleFile& file, const Unit& unit);

}  // namespace varnstride
