// The four drawn maps of a scenario source, [terrain], [areas], [heights] and [overlay], read into
// the cells of a file and drawn from them. Which picture of a kind a cell gets follows from its
// place, always the same.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

void ReadMaps(const ScenarioText& text, ScenarioBuild& build);
std::string WriteMaps(const BattleFile& file);

}  // namespace varnstride
