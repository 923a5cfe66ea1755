// The subcommand "atlas": checks atlas files and compiles them into the program's table.
#pragma once

namespace CLI {
class App;
}

namespace varnstride {

// Adds the subcommand. When it has run, exitCode is 0, or 2 for a mistake in the content.
void AddAtlasCommand(CLI::App& app, int& exitCode);

}  // namespace varnstride
