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

// All but [battle], as far as the sections can tell it.
std::string SectionsOf(const BattleFile& file) {
    return WriteDescription(file) + WriteMaps(file) + WriteRoads(file) + WriteLabels(file) +
           WriteObjectives(file) + WriteArmies(file) + WriteBriefings(file) + WriteUnits(file);
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
std::string WithOverrides(const BattleFile& file, const AtlasCatalogue& atlases) {
    const std::string battle = WriteBattle(file, ScenarioRules::Strict);
    const std::string sections = SectionsOf(file);
    Overrides said;
    for (;;) {
        const std::string text = sections + OverrideText(said);
        const Overrides left = OverridesBetween(AssembleScenario(battle + text, atlases), file);
        if (left.AreEmpty()) return text;
        said.cells += left.cells;
        said.fields += left.fields;
    }
}

bool KeepsStrictRules(const std::string& text, const AtlasCatalogue& atlases) {
    SourceErrors breaches("");
    std::vector<std::string> warnings;
    return CompileScenario(text, atlases, breaches, warnings).has_value();
}

}  // namespace

std::string DecompileScenario(const BattleFile& file, const AtlasCatalogue& atlases) {
    const std::string text = WithOverrides(file, atlases);
    const std::string strict = WriteBattle(file, ScenarioRules::Strict) + text;
    if (KeepsStrictRules(strict, atlases)) return strict;
    return WriteBattle(file, ScenarioRules::Loose) + text;
}

}  // namespace varnstride
