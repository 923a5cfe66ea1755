#include "display/stand_in.h"

#include "display/font.h"
#include "display/mouse_map.h"

namespace varnstride {
namespace {

struct Shape {
    int width;
    int height;
    int hexWidth;  // 0: a rectangle
    bool hasLetter;
};

constexpr Shape ShapeOf(StandIn standIn) {
    switch (standIn) {
        case StandIn::Hex: return {32, 42, 32, false};
        case StandIn::SmallHex: return {16, 21, 16, false};
        case StandIn::Plate: return {14, 15, 0, true};
        case StandIn::SmallPlate: return {9, 13, 0, true};
        case StandIn::Dot: return {4, 4, 0, false};
        case StandIn::Sprite: return {24, 18, 0, true};
    }
    return {};
}

// Neighbouring numbers get colours that an eye tells apart.
Pixel ColorOf(int number) {
    return MakePixel(96 + number * 37 % 96, 96 + number * 61 % 96, 96 + number * 23 % 96);
}

char LetterOf(std::string_view file) {
    return file[file.find('/') + 1];
}

Surface Paint(const Shape& shape, Point anchor, int number, char letter, Pixel key) {
    Surface picture(shape.width, shape.height, ColorOf(number));
    for (int y = 0; y < shape.height && shape.hexWidth > 0; ++y) {
        for (int x = 0; x < shape.width; ++x) {
            if (!IsInHex(shape.hexWidth, Point{x, y} - anchor)) picture.At(x, y) = key;
        }
    }
    if (!shape.hasLetter) return picture;
    const std::string_view text(&letter, 1);
    DrawText(picture, picture.Bounds(),
             {(shape.width - TextWidth(text) + 1) / 2, (shape.height - kGlyphHeight + 2) / 2}, text,
             kBlack);
    return picture;
}

}  // namespace

void FillWithStandIns(TileSet& set, const SheetNeed& need) {
    const Shape shape = ShapeOf(need.standIn);
    const Point anchor{shape.width / 2, shape.height / 2};
    for (int number = 0; number < need.tiles; ++number) {
        if (set.Has(number)) continue;
        const bool isSeen = number >= need.firstSeen;
        set.Put(number,
                isSeen ? Paint(shape, anchor, number, LetterOf(need.file), set.Key())
                       : Surface(shape.width, shape.height, set.Key()),
                anchor);
    }
}

}  // namespace varnstride
