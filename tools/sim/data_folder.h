// Where the game's own files stand, seen from the program.
#pragma once

#include <filesystem>

namespace varnstride::sim {

// The folder that holds Scenarios, Graphics and Units: installed, in a build, or beside the
// program. Throws a Refusal when there is none.
std::filesystem::path DataFolder(const std::filesystem::path& program);

}  // namespace varnstride::sim
