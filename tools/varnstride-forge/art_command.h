// The subcommand "art": paints the bitmaps of the game from the recipes and content/art.
#pragma once

namespace CLI {
class App;
}

namespace varnstride {

// Adds the subcommand. When it has run, exitCode is 0, or 2 for a mistake in the content.
void AddArtCommand(CLI::App& app, int& exitCode);

}  // namespace varnstride
