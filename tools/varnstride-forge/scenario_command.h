// The subcommand "scenario": compiles scenario sources into the files that the game opens, and
// turns such files back into sources.
#pragma once

namespace CLI {
class App;
}

namespace varnstride {

// Adds the subcommand. When it has run, exitCode is 0, or 2 for a mistake in the content.
void AddScenarioCommand(CLI::App& app, int& exitCode);

}  // namespace varnstride
