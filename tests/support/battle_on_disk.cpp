#include "support/battle_on_disk.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <type_traits>

#include "model/state_fields.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

template <typename Value>
void Print(std::ostream& out, const Value& value) {
    if constexpr (std::is_same_v<Value, Cell>) {
        out << value.x << ',' << value.y;
    } else if constexpr (std::is_enum_v<Value>) {
        out << static_cast<int>(value);
    } else if constexpr (std::is_arithmetic_v<Value>) {
        out << value;
    } else {
        for (const auto& element : value) {
            Print(out, element);
            out << ' ';
        }
    }
}

}  // namespace

BattleOnDisk::BattleOnDisk()
    : field_({}),
      folder_(testing::TempDir() + "varnstride-" + std::to_string(getpid()) + "-" +
              testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::create_directories(folder_);
    MakeSavable(Content());
    field_.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
    field_.Add(kPrussian, 2, 1, MakeUnit(UnitType::LineInfantry));
}

BattleOnDisk::~BattleOnDisk() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string BattleOnDisk::PathOf(const std::string& name) const {
    return folder_ + "/" + name;
}

std::string BattleOnDisk::Write(const std::string& name) {
    const auto written = WriteBattleFile(PathOf(name), TakeFromGame(Content()));
    EXPECT_TRUE(written.Ok()) << written.Message();
    return PathOf(name);
}

std::string BattleOnDisk::WriteGarbage(const std::string& name) {
    std::ofstream(PathOf(name)) << "not a battle";
    return PathOf(name);
}

BattleFile BattleOnDisk::Read(const std::string& path) const {
    auto read = ReadBattleFile(path, field_.catalogue);
    if (read.Ok()) return read.Get();
    ADD_FAILURE() << read.Message();
    return {};
}

std::unique_ptr<Program> BattleOnDisk::NewProgram() const {
    return std::make_unique<Program>(field_.catalogue);
}

std::string Everything(const Game& game) {
    std::ostringstream out;
    ForEachStateField(game, [&](const char* name, const auto& value) {
        out << name << '=';
        Print(out, value);
        out << '\n';
    });
    out << "generator=" << game.generator.State() << "\nfile=" << game.filePath << '\n';
    if (game.grid.Width() == 0) return out.str();
    for (const std::byte byte : SerializeBattleFile(TakeFromGame(game)))
        out << static_cast<char>(byte);
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x < game.grid.Width(); ++x) {
            const UnitId unit = game.grid.Standing({x, y});
            if (unit) out << x << ',' << y << ':' << unit.army << '/' << unit.index << '\n';
        }
    }
    return out.str();
}

}  // namespace varnstride
