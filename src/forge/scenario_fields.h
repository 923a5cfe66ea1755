// The sections [cells] and [fields] of a scenario source, which reach every stored word of a file
// by name: what the other sections cannot say, and what the decompiler needs to give a file back
// to the last byte.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

void ApplyCells(const ScenarioText& text, ScenarioBuild& build);
void ApplyFields(const ScenarioText& text, ScenarioBuild& build);

// What has to be said in the two sections to turn one file into the other, on a grid of the same
// size.
struct Overrides {
    std::string cells;   // lines of [cells]
    std::string fields;  // lines of [fields]

    bool AreEmpty() const { return cells.empty() && fields.empty(); }
};
Overrides OverridesBetween(const BattleFile& have, const BattleFile& want);

}  // namespace varnstride
