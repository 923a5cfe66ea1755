// Scenario sources turned into scenario files. The build calls it through varnstride-forge; the
// same source gives the same bytes every time. How a source is written: docs/scenario_format.md.
#pragma once

#include <optional>
#include <string_view>

#include "forge/scenario_build.h"

namespace varnstride {

struct CompiledScenario {
    BattleFile file;
    ScenarioRules rules = ScenarioRules::Strict;
};

// Reads the whole source and gathers every mistake with its line; with any of them there is no
// scenario. Whether the ground suits the battlefield is asked by CheckGround.
std::optional<CompiledScenario> CompileScenario(std::string_view text,
                                                const AtlasCatalogue& atlases,
                                                SourceErrors& errors);

// What a source says, as far as it can be read, with no check between the sections.
CompiledScenario AssembleScenario(std::string_view text, const AtlasCatalogue& atlases,
                                  SourceErrors& errors);

}  // namespace varnstride
