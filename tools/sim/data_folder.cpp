#include "sim/data_folder.h"

#include "files/data_folder.h"
#include "sim/subcommands.h"

namespace varnstride::sim {

std::filesystem::path DataFolder() {
    const std::optional<std::filesystem::path> data = FindDataFolder();
    if (!data) throw Refusal("no folder of the game's files beside the program");
    return *data;
}

}  // namespace varnstride::sim
