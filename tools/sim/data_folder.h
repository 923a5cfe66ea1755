// Where the game's own files stand, seen from the program.
#pragma once

#include <filesystem>

namespace varnstride::sim {

// As FindDataFolder; throws a Refusal when there is none.
std::filesystem::path DataFolder();

}  // namespace varnstride::sim
