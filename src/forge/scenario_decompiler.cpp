#include "forge/scenario_decompiler.h"

#include "forge/scenario_battle.h"
#include "forge/scenario_compiler.h"
#include "forge/scenario_fields.h"
#include "forge/scenario_maps.h"
#include "forge/scenario_places.h"
#include "forge/scenario_prose.h"
#include "forge/scenario_roads.h"
#include "forge/scenario_units.h"

namespace varnstride {
namespace {

std::string SourceWithoutOverrides(const BattleFile& file, ScenarioRules rules) {
    return WriteBattle(file, rules) + WriteDescription(file) + WriteMaps(file) + WriteRoads(file) +
           WriteLabels(file) + WriteObjectives(file) + WriteArmies(file) + WriteBriefings(file) +
           WriteUnits(file);
}

std::string OverrideText(const Overrides& overrides) {
    std::string text;
    if (!overrides.cells.empty()) text += "[cells]\n" + overrides.cells + "\n";
    if (!overrides.fields.empty()) text += "[fields]\n" + overrides.fields;
    return text;
}

// An override can change what is worked out from it, an area number the borders around it, so the
// source is compiled and completed until nothing is left to say. What is said once stays, so that
// this comes to an end.
std::string Decompiled(const BattleFile& file, const AtlasCatalogue& atlases, ScenarioRules rules) {
    const std::string plain = SourceWithoutOverrides(file, rules);
    Overrides said;
    for (;;) {
        const std::string text = plain + OverrideText(said);
        const Overrides left = OverridesBetween(AssembleScenario(text, atlases), file);
        if (left.AreEmpty()) return text;
        said.cells += left.cells;
        said.fields += left.fields;
    }
}

}  // namespace

std::string DecompileScenario(const BattleFile& file, const AtlasCatalogue& atlases) {
    const std::string strict = Decompiled(file, atlases, ScenarioRules::Strict);
    SourceErrors breaches("");
    std::vector<std::string> warnings;
    if (CompileScenario(strict, atlases, breaches, warnings)) return strict;
    return Decompiled(file, atlases, ScenarioRules::Loose);
}

}  // namespace varnstride
