// Saves that fail or are cut off leave the old file whole, and the disk's own reason is told.
#include "files/safe_write.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>

namespace varnstride {
namespace {

constexpr std::size_t kSize = 700'000;  // as long as a battle

class SafeWrite : public testing::Test {
 protected:
    SafeWrite()
        : folder_(testing::TempDir() + "varnstride-write-" + std::to_string(getpid()) + "-" +
                  testing::UnitTest::GetInstance()->current_test_info()->name()) {
        std::filesystem::create_directories(folder_);
    }
    ~SafeWrite() override { std::filesystem::remove_all(folder_); }

    static std::vector<std::byte> Filled(char mark) {
        return std::vector(kSize, static_cast<std::byte>(mark));
    }
    std::string Path(const std::string& name) const { return folder_ + "/" + name; }
    void Write(char mark) const {
        const auto written = WriteSafely(Path("a.cmb"), Filled(mark));
        ASSERT_TRUE(written.Ok()) << written.Message();
    }
    // The mark that fills the whole file; 0 when it is not whole.
    char MarkOfFile() const {
        const auto bytes = ReadWholeFile(Path("a.cmb"));
        if (!bytes.Ok() || bytes.Get().size() != kSize) return 0;
        const char mark = static_cast<char>(bytes.Get().front());
        return bytes.Get() == Filled(mark) ? mark : '\0';
    }
    std::ptrdiff_t FilesInFolder() const {
        return std::distance(std::filesystem::directory_iterator(folder_), {});
    }
    void ExpectFailure(const std::string& path, const std::string& reason) const {
        const auto written = WriteSafely(path, Filled('n'));
        ASSERT_FALSE(written.Ok()) << path;
        EXPECT_EQ(written.Message(), path + ": cannot be written: " + reason);
    }

    std::string folder_;
};

// Runs a piece of the test in a process of its own; true when it says so.
bool InChild(const std::function<bool()>& run) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(run() ? 0 : 1);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST_F(SafeWrite, TakesThePlaceOfTheOldFileAndKeepsItsRights) {
    Write('o');
    ::chmod(Path("a.cmb").c_str(), 0640);
    Write('n');
    EXPECT_EQ(MarkOfFile(), 'n');
    EXPECT_EQ(FilesInFolder(), 1);
    struct stat status {};
    ::stat(Path("a.cmb").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST_F(SafeWrite, AFullDiskLeavesTheOldFile) {
    Write('o');
    EXPECT_TRUE(InChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{kSize / 2, kSize / 2};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const auto written = WriteSafely(Path("a.cmb"), Filled('n'));
        return !written.Ok() &&
               written.Message() == Path("a.cmb") + ": cannot be written: File too large";
    }));
    EXPECT_EQ(MarkOfFile(), 'o');
    EXPECT_EQ(FilesInFolder(), 1) << "the half-written file is gone";
}

TEST_F(SafeWrite, ASaveThatIsKilledLeavesAWholeFile) {
    Write('o');
    int cutOff = 0;
    for (int attempt = 0; attempt < 60; ++attempt) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (char mark = 'a';; mark = mark == 'z' ? 'a' : static_cast<char>(mark + 1)) {
                if (!WriteSafely(Path("a.cmb"), Filled(mark)).Ok()) ::_exit(1);
            }
        }
        ::usleep(static_cast<useconds_t>(1000 + attempt * 137));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the save failed by itself";
        EXPECT_NE(MarkOfFile(), 0) << "after attempt " << attempt;
        cutOff = static_cast<int>(FilesInFolder()) - 1;
    }
    EXPECT_GT(cutOff, 0) << "no save was cut off before its end";
}

TEST_F(SafeWrite, TellsWhyItCannotWrite) {
    std::filesystem::create_directory(Path("folder"));
    Write('o');
    ExpectFailure(Path("missing/a.cmb"), "No such file or directory");
    ExpectFailure(Path("folder"), "Is a directory");
    ExpectFailure(Path("a.cmb/b.cmb"), "Not a directory");
    ExpectFailure(Path(std::string(300, 'x')), "File name too long");
    EXPECT_TRUE(std::filesystem::is_empty(Path("folder")));
    EXPECT_EQ(FilesInFolder(), 2);
}

// The superuser may do anything, so a child gives that up.
bool AsPlainUser(const std::function<bool()>& run) {
    constexpr uid_t kNobody = 65534;
    return InChild([&] { return (::geteuid() != 0 || ::seteuid(kNobody) == 0) && run(); });
}

TEST_F(SafeWrite, AFileThatThePlayerMayNotWriteStays) {
    Write('o');
    std::filesystem::permissions(folder_, std::filesystem::perms::all);
    ::chmod(Path("a.cmb").c_str(), 0444);
    EXPECT_TRUE(AsPlainUser([&] {
        const auto written = WriteSafely(Path("a.cmb"), Filled('n'));
        return !written.Ok() &&
               written.Message() == Path("a.cmb") + ": cannot be written: Permission denied";
    }));
    EXPECT_EQ(MarkOfFile(), 'o');
}

TEST_F(SafeWrite, TellsWhyItCannotRead) {
    const auto reason = [&](const std::string& path) {
        const auto read = ReadWholeFile(path);
        return read.Ok() ? "read" : read.Message();
    };
    EXPECT_EQ(reason(Path("a.cmb")),
              Path("a.cmb") + ": cannot be opened: No such file or directory");
    EXPECT_EQ(reason(folder_), folder_ + ": cannot be read: it is not a file");
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0666), 0);
    EXPECT_EQ(reason(Path("pipe")), Path("pipe") + ": cannot be read: it is not a file");
    Write('o');
    ASSERT_EQ(::truncate(Path("a.cmb").c_str(), 100'000'000), 0);
    EXPECT_EQ(reason(Path("a.cmb")), Path("a.cmb") + ": is far too large for a battle");
    ::chmod(Path("a.cmb").c_str(), 0);
    EXPECT_TRUE(AsPlainUser([&] {
        return reason(Path("a.cmb")) == Path("a.cmb") + ": cannot be opened: Permission denied";
    }));
}

}  // namespace
}  // namespace varnstride
