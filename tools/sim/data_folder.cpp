#include "sim/data_folder.h"

#include <array>

#include "sim/subcommands.h"

namespace varnstride::sim {
namespace {

namespace fs = std::filesystem;

// Seen from the folder of the program.
constexpr std::array kFolders = {"../share/varnstride", "../data", "."};

}  // namespace

fs::path DataFolder(const fs::path& program) {
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    const fs::path home = (error ? fs::absolute(program) : self).parent_path();
    for (const char* folder : kFolders) {
        const fs::path data = home / folder;
        if (fs::is_directory(data / "Scenarios", error)) return data.lexically_normal();
    }
    throw Refusal("no folder of the game's files beside " + home.string());
}

}  // namespace varnstride::sim
