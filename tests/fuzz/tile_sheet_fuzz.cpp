// Picture files with wrong bytes: whatever they hold, they are refused with a message or become
// tiles that can be drawn. An input is either a whole file or a list of changes to a sound sheet,
// three bytes each: where (two bytes), the value.
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "display/bmp_reader.h"
#include "display/mouse_map.h"
#include "display/painted_sheet.h"
#include "display/tile_set.h"

namespace varnstride {
namespace {

constexpr std::size_t kChangeSize = 3;

std::vector<std::byte> SoundSheet() {
    std::vector<PaintedTile> tiles;
    for (int number = 0; number < 6; ++number)
        tiles.push_back({Surface(5 + number, 7, MakePixel(number, 90, 0)), {number, 3}});
    return EncodeBmp(PaintSheet(tiles, 3));
}

std::vector<std::byte> FileOf(std::span<const std::uint8_t> input) {
    static const std::vector<std::byte> sound = SoundSheet();
    const auto rest = std::as_bytes(input.subspan(1));
    if (input[0] % 4 == 0) return {rest.begin(), rest.end()};
    std::vector<std::byte> bytes = sound;
    for (std::size_t at = 0; at + kChangeSize <= rest.size(); at += kChangeSize) {
        const auto place = std::to_integer<std::size_t>(rest[at]) +
                           256 * std::to_integer<std::size_t>(rest[at + 1]);
        bytes[place % bytes.size()] = rest[at + 2];
    }
    return bytes;
}

void Expect(bool holds) {
    if (!holds) std::abort();
}

void DrawAll(const TileSet& set) {
    Surface surface(40, 30);
    for (int tile = 0; tile < set.Count(); ++tile)
        DrawTile(set, surface, {2, 2, 35, 28}, {20, 15}, tile);
}

void Try(std::span<const std::uint8_t> input) {
    if (input.empty()) return;
    const Result<Surface> picture = DecodeBmp(FileOf(input), "fuzz");
    if (!picture.Ok()) return Expect(picture.Message().starts_with("fuzz: "));
    const Result<TileSet> set = CutTileSet(picture.Get(), "fuzz");
    if (set.Ok()) {
        DrawAll(set.Get());
    } else {
        Expect(set.Message().starts_with("fuzz: "));
    }
    const Result<MouseMap> map = MakeMouseMap(picture.Get(), "fuzz");
    if (map.Ok()) map.Get().CellAt({-7, 900});
}

}  // namespace
}  // namespace varnstride

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    varnstride::Try({data, size});
    return 0;
}
