// The sections [labels] and [objectives] of a scenario source, read into the cells and labels of a
// file and written from them.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

void ReadLabels(const ScenarioText& text, ScenarioBuild& build);
std::string WriteLabels(const BattleFile& file);

void ReadObjectives(const ScenarioText& text, ScenarioBuild& build);
std::string WriteObjectives(const BattleFile& file);

}  // namespace varnstride
