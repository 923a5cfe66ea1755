// Where the game's own files stand, seen from the program.
#pragma once

#include <filesystem>
#include <optional>

namespace varnstride {

// The folder that holds Scenarios, Graphics and Units: installed, in a build, or beside the
// program. Nothing when there is none.
std::optional<std::filesystem::path> FindDataFolder();

}  // namespace varnstride
