// The sections [battle] and [armies] of a scenario source, read into a file's blocks and written
// from them.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

// Reads [battle] and sets up the grid, empty, and the atlas. A value that cannot be read stays at
// its default.
void ReadBattle(const ScenarioText& text, const AtlasCatalogue& atlases, ScenarioBuild& build);
std::string WriteBattle(const BattleFile& file, ScenarioRules rules);

void ReadArmies(const ScenarioText& text, ScenarioBuild& build);
std::string WriteArmies(const BattleFile& file);

}  // namespace varnstride
