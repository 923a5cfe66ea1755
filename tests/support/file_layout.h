// Where the blocks of a battle file lie, written down apart from the code that reads and writes
// them.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace varnstride {

struct FileLayout {
    int width = 0;
    int height = 0;
    bool briefings = false;
    int armies = 7;
    int unitsPerArmy = 600;

    static constexpr std::size_t kMap = 12;

    std::size_t Cell(int x, int y) const { return kMap + 60 * Product(x, height) + 60 * Of(y); }
    std::size_t Labels() const { return kMap + 60 * Product(width, height); }
    std::size_t Counts() const { return Labels() + 1080; }
    std::size_t Header() const { return Counts() + 8; }
    std::size_t Time() const { return Header() + 1154; }
    std::size_t Loss() const { return Time() + 14; }
    std::size_t Army(int army) const { return Loss() + 16 + 38 * Of(army); }
    std::size_t Briefings() const { return Army(armies); }
    std::size_t Unit(int army, int index) const {
        return Briefings() + (briefings ? 3514 : 0) + 148 * Product(army, unitsPerArmy) +
               148 * Of(index);
    }
    std::size_t TurnLog() const { return Unit(armies, 0); }
    std::size_t Options() const { return TurnLog() + 5006; }
    std::size_t End() const { return Options() + 32; }

    // Where a block begins, in the order of the file, and the end of the file.
    std::vector<std::size_t> Bounds() const {
        return {0,      4,       kMap,        Labels(),   Counts(),  Header(),  Time(),
                Loss(), Army(0), Briefings(), Unit(0, 0), TurnLog(), Options(), End()};
    }

 private:
    static std::size_t Of(int number) { return static_cast<std::size_t>(number); }
    static std::size_t Product(int left, int right) { return Of(left) * Of(right); }
};

// A file of the present layout as the older one would hold it, with fewer armies and records.
// Units beyond them are lost; so the caller takes away the marks of those on the map.
inline std::vector<std::byte> InOlderLayout(const std::vector<std::byte>& bytes,
                                            const FileLayout& layout, int armies,
                                            int unitsPerArmy) {
    std::vector<std::byte> older;
    const auto copy = [&](std::size_t from, std::size_t to) {
        older.insert(older.end(), bytes.begin() + static_cast<std::ptrdiff_t>(from),
                     bytes.begin() + static_cast<std::ptrdiff_t>(to));
    };
    copy(0, layout.Army(armies));
    copy(layout.Briefings(), layout.Unit(0, 0));
    for (int army = 0; army < armies; ++army)
        copy(layout.Unit(army, 0), layout.Unit(army, unitsPerArmy));
    copy(layout.TurnLog(), layout.End());
    const int counts[] = {armies, unitsPerArmy};
    for (std::size_t index = 0; index < 2; ++index) {
        const std::size_t at = layout.Counts() + 2 * index;
        older[at] = static_cast<std::byte>(counts[index] & 0xFF);
        older[at + 1] = static_cast<std::byte>(counts[index] >> 8);
    }
    return older;
}

}  // namespace varnstride
