// The tables [units ARMY] of a scenario source, read into the unit records of a file and written
// from them. Every record of an army but the empty one at 0 can be told by a row.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

void ReadUnits(const ScenarioText& text, ScenarioBuild& build);
std::string WriteUnits(const BattleFile& file);

}  // namespace varnstride
