// How long a battle takes from the disk and to it, beside reading and writing as many bytes that
// nobody looks at. Both writes wait until the disk has the bytes; that wait is not counted.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "files/battle_file.h"
#include "files/safe_write.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

class BattleOnDisk {
 public:
    BattleOnDisk() : field_(MakeLargeBattle()) {
        MakeSavable(field_->game);
        field_->game.header.savedTurn = field_->game.state.gameTurn;
        content_ = TakeFromGame(field_->game);
        WriteBattleFile(path_, content_);
    }
    BattleOnDisk(const BattleOnDisk&) = delete;
    BattleOnDisk& operator=(const BattleOnDisk&) = delete;
    ~BattleOnDisk() { std::filesystem::remove(path_); }

    const BattleFile& Content() const { return content_; }
    const AtlasCatalogue& Atlases() const { return field_->catalogue; }
    const std::string& Path() const { return path_; }

 private:
    const std::string path_ = (std::filesystem::temp_directory_path() /
                               ("varnstride-bench-" + std::to_string(getpid()) + ".cmb"))
                                  .string();
    std::unique_ptr<Field> field_;
    BattleFile content_;
};

void ReadBattle(benchmark::State& state) {
    const BattleOnDisk disk;
    for (auto _ : state) {
        const auto read = ReadBattleFile(disk.Path(), disk.Atlases());
        if (!read.Ok()) state.SkipWithError(read.Message().c_str());
        benchmark::DoNotOptimize(&read);
    }
}

void ReadBytes(benchmark::State& state) {
    const BattleOnDisk disk;
    for (auto _ : state) {
        std::vector<std::byte> bytes(std::filesystem::file_size(disk.Path()));
        const int file = ::open(disk.Path().c_str(), O_RDONLY);
        const ssize_t got = ::read(file, bytes.data(), bytes.size());
        ::close(file);
        if (got != static_cast<ssize_t>(bytes.size())) state.SkipWithError("cannot read");
        benchmark::DoNotOptimize(bytes.data());
    }
}

void WriteBattle(benchmark::State& state) {
    const BattleOnDisk disk;
    for (auto _ : state) {
        const auto written = WriteBattleFile(disk.Path(), disk.Content());
        if (!written.Ok()) state.SkipWithError(written.Message().c_str());
    }
}

void WriteBytes(benchmark::State& state) {
    const BattleOnDisk disk;
    const std::vector<std::byte> bytes = SerializeBattleFile(disk.Content());
    for (auto _ : state) {
        const int file = ::open(disk.Path().c_str(), O_WRONLY | O_TRUNC);
        const ssize_t put = ::write(file, bytes.data(), bytes.size());
        if (put != static_cast<ssize_t>(bytes.size()) || ::fsync(file) != 0) {
            state.SkipWithError("cannot write");
        }
        ::close(file);
    }
}

// tools/bench sets each FILE/bytes beside FILE/battle.
BENCHMARK(ReadBattle)->Name("Read a battle/battle");
BENCHMARK(ReadBytes)->Name("Read a battle/bytes");
BENCHMARK(WriteBattle)->Name("Write a battle/battle");
BENCHMARK(WriteBytes)->Name("Write a battle/bytes");

}  // namespace
}  // namespace varnstride
