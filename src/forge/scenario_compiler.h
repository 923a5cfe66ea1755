// Scenario sources turned into scenario files. The build calls it through varnstride-forge; the
// same source gives the same bytes every time. How a source is written: docs/scenario_format.md.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forge/scenario_build.h"

namespace varnstride {

struct CompiledScenario {
    BattleFile file;
    ScenarioRules rules = ScenarioRules::Strict;
};

// Reads the whole source and gathers every mistake with its line; with any of them there is no
// scenario. A source that can be read is held against the rules of its battlefield too, whose
// breaches are warnings under loose rules.
std::optional<CompiledScenario> CompileScenario(std::string_view text,
                                                const AtlasCatalogue& atlases, SourceErrors& errors,
                                                std::vector<std::string>& warnings);

// What a source says, as far as it can be read, with no check between the sections.
BattleFile AssembleScenario(std::string_view text, const AtlasCatalogue& atlases);

}  // namespace varnstride
