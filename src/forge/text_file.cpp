#include "forge/text_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace varnstride {
namespace {

Failure Refusal(const std::string& path, const std::string& what, const std::string& reason) {
    return {path + ": cannot be " + what + ": " + reason};
}

}  // namespace

Result<std::string> ReadTextFile(const std::string& path) {
    if (std::filesystem::is_directory(path)) return Refusal(path, "read", "it is a folder");
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file) return Refusal(path, "read", std::strerror(errno));
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) return Refusal(path, "read", "reading broke off");
    return text;
}

Result<Done> WriteTextFile(const std::string& path, std::string_view text) {
    const std::string beside = path + ".new";
    errno = 0;
    std::ofstream file(beside, std::ios::binary);
    file << text << std::flush;
    file.close();
    std::error_code error;
    if (!file) {
        const std::string reason = std::strerror(errno);
        std::filesystem::remove(beside, error);
        return Refusal(path, "written", reason);
    }
    std::filesystem::rename(beside, path, error);
    if (!error) return Done{};
    const std::string reason = error.message();
    std::filesystem::remove(beside, error);
    return Refusal(path, "written", reason);
}

}  // namespace varnstride
