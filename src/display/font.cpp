#include "display/font.h"

#include <optional>

#include "display/font_glyphs.h"

namespace varnstride {
namespace {

static_assert(kGlyphHeight == kGlyphRows);

constexpr int kGap = 1;
constexpr int kBlankWidth = 5;

// A letter's columns in its band.
struct Glyph {
    const GlyphBand* band = nullptr;
    std::size_t first = 0;
    std::size_t width = 0;
};

std::optional<Glyph> FindGlyph(char letter) {
    for (const GlyphBand& band : kGlyphBands) {
        const std::size_t number = band.letters.find(letter);
        if (number == std::string_view::npos) continue;
        std::size_t first = 0;
        for (std::size_t passed = 0; passed < number; ++passed)
            first = band.rows[0].find(' ', first) + 1;
        const std::size_t end = std::min(band.rows[0].find(' ', first), band.rows[0].size());
        return Glyph{&band, first, end - first};
    }
    return std::nullopt;
}

int AdvanceOf(char letter) {
    if (letter == ' ') return kBlankWidth;
    const std::optional<Glyph> glyph = FindGlyph(letter);
    return glyph ? static_cast<int>(glyph->width) + kGap : 0;
}

void DrawGlyph(Surface& surface, const Rect& clip, Point at, const Glyph& glyph, Pixel pixel) {
    for (int y = 0; y < kGlyphHeight; ++y) {
        const std::string_view row =
            glyph.band->rows[static_cast<std::size_t>(y)].substr(glyph.first, glyph.width);
        for (int x = 0; x < static_cast<int>(row.size()); ++x) {
            const Point place = at + Point{x, y};
            if (row[static_cast<std::size_t>(x)] != '#' || !clip.Holds(place)) continue;
            surface.At(place.x, place.y) = pixel;
        }
    }
}

}  // namespace

int TextWidth(std::string_view text) {
    int width = 0;
    for (const char letter : text)
        width += AdvanceOf(letter);
    return width;
}

void DrawText(Surface& surface, const Rect& clip, Point at, std::string_view text, Pixel pixel) {
    const Rect inside = Intersection(clip, surface.Bounds());
    for (const char letter : text) {
        const std::optional<Glyph> glyph = FindGlyph(letter);
        if (glyph) DrawGlyph(surface, inside, at, *glyph, pixel);
        at.x += AdvanceOf(letter);
    }
}

}  // namespace varnstride
