// The glyphs of place names: each on a piece of its plate, so that a name is pieced together by
// copying. Where they lie stands in model/label_sheet.h.
#include "model/label_sheet.h"

#include <array>
#include <string_view>

#include "forge_art/color.h"
#include "forge_art/emblems.h"
#include "forge_art/top_bar_sheet.h"

namespace varnstride::art {
namespace {

// By block; the second style of a block is paler.
constexpr std::array<const char*, kLabelBlocks> kInks = {"label.ink", "label.navy", "label.forest"};

QRgb InkOf(const Studio& studio, int block, int style) {
    const QRgb ink = studio.palette[kInks[static_cast<std::size_t>(block)]];
    return style == 0 ? ink : Mix(ink, studio.palette["label.paper"], 0.35);
}

void FillPlate(Tile& tile, QPoint at, int width, QRgb plate, QRgb ink) {
    for (int y = 0; y < kLabelHeight; ++y) {
        const bool isEdge = y == 0 || y == kLabelHeight - 1;
        for (int x = 0; x < width; ++x)
            tile.Set(at.x() + x, at.y() + y, isEdge ? Mix(plate, ink, 0.45) : plate);
    }
}

void PutLetters(Tile& tile, const Studio& studio, int top, QRgb ink) {
    const LetterCase& text = studio.lettering.text;
    for (const LabelGlyph& glyph : kLabelGlyphs) {
        const QPoint at(glyph.x, glyph.row + top);
        FillPlate(tile, at, glyph.width, studio.palette["label.paper"],
                  studio.palette["label.ink"]);
        const std::string_view letter(&glyph.letter, 1);
        text.Write(tile, at + QPoint((glyph.width - text.WidthOf(letter) + 1) / 2, 3), letter, ink);
    }
}

}  // namespace

QImage PaintLabelSheet(const Studio& studio) {
    QImage picture(kLabelSheetWidth, kLabelSheetHeight, QImage::Format_RGB32);
    picture.fill(studio.palette["report.paper"]);
    Tile tile(picture.rect());
    FillPlate(tile, {kLabelPlateX, kLabelPlateY}, kLabelEndWidth, studio.palette["label.paper"],
              studio.palette["label.ink"]);
    for (int block = 0; block < kLabelBlocks; ++block) {
        for (int style = 0; style < kLabelStyles; ++style) {
            PutLetters(tile, studio, block * kLabelBlockStep + style * kLabelStyleStep,
                       InkOf(studio, block, style));
        }
    }
    Put(picture, tile, {0, 0});
    return picture;
}

}  // namespace varnstride::art
