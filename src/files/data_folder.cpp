#include "files/data_folder.h"

#include <array>
#include <system_error>

namespace varnstride {
namespace {

namespace fs = std::filesystem;

// Seen from the folder of the program.
constexpr std::array kFolders = {"../share/varnstride", "../data", "."};

}  // namespace

std::optional<fs::path> FindDataFolder() {
    std::error_code error;
    const fs::path home = fs::read_symlink("/proc/self/exe", error).parent_path();
    for (const char* folder : kFolders) {
        const fs::path data = home / folder;
        if (fs::is_directory(data / "Scenarios", error)) return data.lexically_normal();
    }
    return std::nullopt;
}

}  // namespace varnstride
