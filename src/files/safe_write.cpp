#include "files/safe_write.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace varnstride {
namespace {

class OpenFile {
 public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() { Close(); }

    bool IsOpen() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }
    bool Close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

 private:
    int descriptor_;
};

Failure SystemFailure(const std::string& path, const char* what, int reason) {
    return {path + ": " + what + ": " + std::strerror(reason)};
}

bool WriteAll(int descriptor, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

// The name in the folder must reach the disk as well; a folder that cannot be flushed does no harm.
void FlushFolderOf(const std::string& path) {
    const auto folder = std::filesystem::path(path).parent_path();
    const OpenFile opened(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY));
    if (opened.IsOpen()) ::fsync(opened.Get());
}

// Those of the file that is replaced, or those that any new file of the player would get.
mode_t RightsFor(const std::string& path) {
    struct stat old {};
    if (::stat(path.c_str(), &old) == 0) return old.st_mode & 0777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// A folder and a file that the player may not write could be renamed over all the same, and must
// not be. 0 when nothing stands in the way.
int WhyKept(const std::string& path) {
    struct stat old {};
    if (::stat(path.c_str(), &old) != 0) return errno == ENOENT ? 0 : errno;
    if (S_ISDIR(old.st_mode)) return EISDIR;
    if (!S_ISREG(old.st_mode)) return EINVAL;
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

}  // namespace

Result<std::vector<std::byte>> ReadWholeFile(const std::string& path) {
    OpenFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen()) return SystemFailure(path, "cannot be opened", errno);
    struct stat status {};
    if (::fstat(file.Get(), &status) != 0) return SystemFailure(path, "cannot be read", errno);
    if (!S_ISREG(status.st_mode)) return Failure{path + ": cannot be read: it is not a file"};
    constexpr off_t kFarTooLarge = 64 << 20;
    if (status.st_size > kFarTooLarge) {
        return Failure{path + ": is far too large for a battle"};
    }
    std::vector<std::byte> bytes(static_cast<std::size_t>(status.st_size));
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t got = ::read(file.Get(), bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return SystemFailure(path, "cannot be read", errno);
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return bytes;
}

Result<Done> WriteSafely(const std::string& path, std::span<const std::byte> bytes) {
    if (const int reason = WhyKept(path)) return SystemFailure(path, "cannot be written", reason);
    std::string beside = path + ".XXXXXX";
    OpenFile file(::mkostemp(beside.data(), O_CLOEXEC));
    if (!file.IsOpen()) return SystemFailure(path, "cannot be written", errno);
    const bool written = WriteAll(file.Get(), bytes) &&
                         ::fchmod(file.Get(), RightsFor(path)) == 0 && ::fsync(file.Get()) == 0 &&
                         file.Close() && ::rename(beside.c_str(), path.c_str()) == 0;
    if (!written) {
        const int reason = errno;
        ::unlink(beside.c_str());
        return SystemFailure(path, "cannot be written", reason);
    }
    FlushFolderOf(path);
    return Done{};
}

}  // namespace varnstride
