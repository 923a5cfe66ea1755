// Battle files with wrong bytes: whatever they hold, they are refused with a message or can be
// played and saved. A random string would not get past the size of the file; so an input is a list
// of changes to a sound file, five bytes each: what to do, where (three bytes), the value.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

#include "support/file_layout.h"
#include "support/synthetic_battle.h"

namespace varnstride {
namespace {

constexpr FileLayout kLayout{.width = 25, .height = 6, .briefings = true};
constexpr std::size_t kChangeSize = 5;

class SoundFiles {
 public:
    SoundFiles() : field_({}) {
        MakeSavable(field_.game);
        field_.Add(kFrench, 1, 1, MakeUnit(UnitType::LineInfantry));
        field_.Add(kPrussian, 2, 1, MakeUnit(UnitType::Lancers));
        field_.game.Army(kFrench).hasGroupAssignments = 1;
        present_ = SerializeBattleFile(TakeFromGame(field_.game));
        older_ = InOlderLayout(present_, kLayout, 4, 3);
    }

    const std::vector<std::byte>& Present() const { return present_; }
    const std::vector<std::byte>& Older() const { return older_; }
    const AtlasCatalogue& Atlases() const { return field_.catalogue; }

 private:
    Field field_;
    std::vector<std::byte> present_;
    std::vector<std::byte> older_;
};

// The places that decide most lie close together; half the changes go there.
std::size_t PlaceOf(std::span<const std::uint8_t> change, std::size_t size) {
    const std::size_t far = change[1] + 256U * change[2] + 65536U * change[3];
    if (change[0] % 2 == 0) return far % size;
    constexpr std::size_t kFrontLength = 2 * 148 + 3514 + 7 * 38 + 16 + 14 + 1154 + 8;
    return (kLayout.Counts() + far % kFrontLength) % size;
}

void Change(std::vector<std::byte>& bytes, std::span<const std::uint8_t> change) {
    if (bytes.empty()) return;
    const std::size_t place = PlaceOf(change, bytes.size());
    switch (change[0] / 2 % 16) {
        case 0: bytes.resize(place); break;
        case 1: bytes.insert(bytes.end(), change[4], std::byte{0}); break;
        default: bytes[place] = static_cast<std::byte>(change[4]); break;
    }
}

void Expect(bool holds) {
    if (!holds) std::abort();
}

bool AreSame(const std::vector<std::byte>& left, const std::vector<std::byte>& right) {
    return left.size() == right.size() && std::memcmp(left.data(), right.data(), left.size()) == 0;
}

// A battle of the present layout comes out as it went in, one of the older can be read again.
void PlayAndSave(const BattleFile& file, const std::vector<std::byte>& bytes,
                 const AtlasCatalogue& atlases) {
    SilentPerson person;
    Game game(atlases, person);
    PutIntoGame(file, FileKind::Battle, game);
    const std::vector<std::byte> saved = SerializeBattleFile(TakeFromGame(game));
    if (file.IsOlderLayout()) {
        Expect(ParseBattleFile(saved, "saved", atlases).Ok());
    } else {
        Expect(AreSame(saved, bytes));
    }
}

// The first byte says which file is changed, and whether a sound one is taken into a game, which
// takes a hundred times as long as finding a fault.
void Try(std::span<const std::uint8_t> input) {
    static const SoundFiles sound;
    if (input.empty()) return;
    const bool present = input[0] % 16 == 0;
    const bool saved = input[0] / 16 % 8 == 0;
    std::vector<std::byte> bytes = present ? sound.Present() : sound.Older();
    for (std::size_t at = 1; at + kChangeSize <= input.size(); at += kChangeSize)
        Change(bytes, input.subspan(at, kChangeSize));
    const auto parsed = ParseBattleFile(bytes, "fuzz", sound.Atlases());
    if (!parsed.Ok()) {
        Expect(parsed.Message().starts_with("fuzz: "));
    } else if (saved) {
        PlayAndSave(parsed.Get(), bytes, sound.Atlases());
    }
}

}  // namespace
}  // namespace varnstride

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    varnstride::Try({data, size});
    return 0;
}
