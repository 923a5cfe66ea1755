// The free texts of a scenario source, [description] and [briefing ARMY], read into a file's blocks
// and written from them.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

void ReadDescription(const ScenarioText& text, ScenarioBuild& build);
std::string WriteDescription(const BattleFile& file);

void ReadBriefings(const ScenarioText& text, ScenarioBuild& build);
std::string WriteBriefings(const BattleFile& file);

}  // namespace varnstride
