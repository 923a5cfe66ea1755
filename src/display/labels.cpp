#include "display/labels.h"

#include <array>
#include <cstring>
#include <string_view>

#include "display/font.h"
#include "model/label_sheet.h"

namespace varnstride {
namespace {

constexpr Pixel kPlateColor = MakePixel(232, 221, 188);
constexpr Pixel kEdgeColor = MakePixel(146, 124, 84);
// By block and, within it, by style.
constexpr std::array<Pixel, kLabelBlocks* kLabelStyles> kInks = {
    MakePixel(46, 32, 18), MakePixel(110, 92, 70),   // ink
    MakePixel(18, 40, 94), MakePixel(84, 104, 150),  // water
    MakePixel(26, 66, 18), MakePixel(86, 118, 74),   // wood
};

constexpr Rect PieceAt(int x, int y, int width) {
    return {x, y, x + width, y + kLabelHeight};
}

// The letters of a style lie so far below those of the first. Numbers beyond those of the sheet
// take the nearest.
int ShiftOfStyle(int style, int block) {
    return std::clamp(style, 0, kLabelStyles - 1) * kLabelStyleStep +
           std::clamp(block, 0, kLabelBlocks - 1) * kLabelBlockStep;
}

// Empty for a character without a piece.
Rect PieceOf(char letter, int shift) {
    if (letter == ' ') return PieceAt(kLabelPlateX, kLabelPlateY, kLabelBlankWidth);
    for (const LabelGlyph& glyph : kLabelGlyphs) {
        if (glyph.letter == letter) return PieceAt(glyph.x, glyph.row + shift, glyph.width);
    }
    return {};
}

// A bare piece of plate with an edge above and below.
void PaintPlate(Surface& canvas, const Rect& piece) {
    Fill(canvas, piece, kEdgeColor);
    Fill(canvas, {piece.left, piece.top + 1, piece.right, piece.bottom - 1}, kPlateColor);
}

void PaintLetters(Surface& canvas, int shift, Pixel ink) {
    constexpr int kLetterTop = 3;
    for (const LabelGlyph& glyph : kLabelGlyphs) {
        const Rect piece = PieceOf(glyph.letter, shift);
        PaintPlate(canvas, piece);
        DrawText(canvas, piece, piece.TopLeft() + Point{0, kLetterTop}, {&glyph.letter, 1}, ink);
    }
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

Surface PaintLabelCanvas() {
    Surface canvas(kLabelSheetWidth, kLabelSheetHeight);
    PaintPlate(canvas, PieceAt(kLabelPlateX, kLabelPlateY, kLabelEndWidth));
    for (int block = 0; block < kLabelBlocks; ++block) {
        for (int style = 0; style < kLabelStyles; ++style) {
            PaintLetters(canvas, ShiftOfStyle(style, block),
                         kInks[static_cast<std::size_t>(block * kLabelStyles + style)]);
        }
    }
    return canvas;
}

void DrawLabel(const Surface& canvas, Surface& surface, const Rect& clip, Point at,
               const MapLabel& label) {
    if (at.y >= clip.bottom || at.y + kLabelHeight <= clip.top) return;
    const auto lay = [&](const Rect& piece) {
        Copy(canvas, piece, surface, at, clip);
        at.x += piece.Width();
    };
    const Rect end = PieceAt(kLabelPlateX, kLabelPlateY, kLabelEndWidth);
    const int shift = ShiftOfStyle(label.labelStyleRow, label.labelStyleBlock);
    lay(end);
    for (const char letter : TextOf(label))
        lay(PieceOf(letter, shift));
    lay(end);
}

}  // namespace varnstride
