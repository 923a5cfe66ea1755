#include "display/labels.h"

#include <array>
#include <cstring>
#include <string_view>

#include "display/font.h"

namespace varnstride {
namespace {

constexpr int kPlateEnd = 7;  // width of the plate before and behind the name
constexpr int kLetterTop = 3;

struct PlateStyle {
    Pixel plate;
    Pixel edge;
    Pixel letters;
};

// By style block, then by style row: dark on light, light on dark.
constexpr std::array<std::array<PlateStyle, 2>, 3> kPlates = {{
    {{{MakePixel(232, 221, 188), MakePixel(146, 124, 84), MakePixel(46, 32, 18)},
      {MakePixel(66, 50, 34), MakePixel(24, 17, 10), MakePixel(240, 230, 200)}}},
    {{{MakePixel(208, 224, 236), MakePixel(92, 122, 150), MakePixel(18, 40, 74)},
      {MakePixel(30, 58, 96), MakePixel(10, 24, 46), MakePixel(220, 234, 246)}}},
    {{{MakePixel(214, 226, 190), MakePixel(104, 128, 74), MakePixel(30, 50, 18)},
      {MakePixel(48, 74, 36), MakePixel(18, 32, 12), MakePixel(228, 240, 206)}}},
}};

template <std::size_t Count, typename Entry>
const Entry& NearestOf(const std::array<Entry, Count>& entries, int index) {
    return entries[static_cast<std::size_t>(std::clamp(index, 0, static_cast<int>(Count) - 1))];
}

// At most 29 characters; the last one of the record always ends a text.
std::string_view TextOf(const MapLabel& label) {
    return {label.labelText.data(), strnlen(label.labelText.data(), label.labelText.size() - 1)};
}

}  // namespace

std::vector<PlacedLabel> PlacedLabels(const Game& game) {
    std::vector<PlacedLabel> placed;
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x) {
            const int label = game.grid.Ground({x, y}).labelIndex;
            if (label > 0 && label < kLabelCount) placed.push_back({{x, y}, label});
        }
    }
    return placed;
}

int LabelWidth(const MapLabel& label) {
    return TextWidth(TextOf(label)) + 2 * kPlateEnd;
}

void DrawLabel(Surface& surface, const Rect& clip, Point at, const MapLabel& label) {
    const PlateStyle& style =
        NearestOf(NearestOf(kPlates, label.labelStyleBlock), label.labelStyleRow);
    const Rect plate{at.x, at.y, at.x + LabelWidth(label), at.y + kPlateHeight};
    const Rect inside = Intersection(clip, surface.Bounds());
    if (Intersection(plate, inside).IsEmpty()) return;
    Fill(surface, Intersection(plate, inside), style.edge);
    Fill(surface,
         Intersection({plate.left + 1, plate.top + 1, plate.right - 1, plate.bottom - 1}, inside),
         style.plate);
    DrawText(surface, inside, at + Point{kPlateEnd, kLetterTop}, TextOf(label), style.letters);
}

}  // namespace varnstride
