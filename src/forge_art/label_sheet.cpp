// The glyphs of place names: each on a piece of its plate, so that a name is pieced together by
// copying. Blocks of styles lie 141 rows apart, the two styles of a block 71.
#include <array>
#include <string_view>

#include "forge_art/color.h"
#include "forge_art/emblems.h"
#include "forge_art/top_bar_sheet.h"

namespace varnstride::art {
namespace {

constexpr int kPlateHeight = 15;
constexpr int kStyleStep = 71;
constexpr int kBlockStep = 141;
constexpr int kStyles = 2;
constexpr int kBlocks = 3;
constexpr QPoint kBlankPlate(5, 6);
constexpr int kBlankWidth = 7;

struct Glyph {
    char letter;
    int x;
    int width;
    int row;
};

constexpr std::array<Glyph, 54> kGlyphs = {{
    {'A', 19, 8, 40},   {'B', 37, 7, 39},  {'C', 53, 7, 39},   {'D', 69, 8, 39},  {'E', 85, 7, 39},
    {'F', 101, 7, 39},  {'G', 117, 8, 39}, {'H', 133, 8, 39},  {'I', 149, 4, 39}, {'J', 163, 5, 39},
    {'K', 177, 8, 39},  {'L', 193, 7, 39}, {'M', 209, 9, 39},  {'N', 225, 8, 39}, {'O', 241, 8, 39},
    {'P', 4, 7, 56},    {'Q', 20, 8, 56},  {'R', 36, 8, 56},   {'S', 52, 7, 56},  {'T', 68, 8, 56},
    {'U', 83, 8, 56},   {'V', 98, 8, 56},  {'W', 113, 12, 56}, {'X', 131, 7, 56}, {'Y', 147, 7, 56},
    {'Z', 163, 8, 56},  {'[', 181, 4, 55}, {']', 197, 4, 55},  {'a', 19, 7, 72},  {'b', 36, 7, 72},
    {'c', 53, 6, 72},   {'d', 69, 7, 72},  {'e', 86, 6, 72},   {'f', 102, 6, 72}, {'g', 118, 7, 72},
    {'h', 134, 7, 72},  {'i', 150, 3, 72}, {'j', 164, 4, 72},  {'k', 179, 6, 72}, {'l', 196, 4, 72},
    {'m', 211, 10, 72}, {'n', 227, 7, 72}, {'o', 243, 6, 72},  {'p', 4, 7, 88},   {'q', 20, 7, 88},
    {'r', 36, 6, 88},   {'s', 52, 6, 88},  {'t', 68, 6, 88},   {'u', 83, 7, 88},  {'v', 98, 6, 88},
    {'w', 113, 9, 88},  {'x', 131, 6, 88}, {'y', 147, 6, 88},  {'z', 163, 6, 88},
}};

struct PlateColors {
    const char* plate;
    const char* ink;
};

// By block and style: dark letters on light plates and the reverse.
constexpr std::array<PlateColors, kBlocks* kStyles> kPlates = {{
    {"label.paper", "label.ink"},
    {"label.ink", "label.paper"},
    {"label.blue", "label.navy"},
    {"label.navy", "label.blue"},
    {"label.green", "label.forest"},
    {"label.forest", "label.green"},
}};

void FillPlate(Tile& tile, QPoint at, int width, QRgb plate, QRgb ink) {
    for (int y = 0; y < kPlateHeight; ++y) {
        const bool isEdge = y == 0 || y == kPlateHeight - 1;
        for (int x = 0; x < width; ++x)
            tile.Set(at.x() + x, at.y() + y, isEdge ? Mix(plate, ink, 0.45) : plate);
    }
}

void PutStyle(Tile& tile, const Studio& studio, int top, const PlateColors& colors) {
    const QRgb plate = studio.palette[colors.plate];
    const QRgb ink = studio.palette[colors.ink];
    const LetterCase& text = studio.lettering.text;
    FillPlate(tile, kBlankPlate + QPoint(0, top), kBlankWidth, plate, ink);
    for (const Glyph& glyph : kGlyphs) {
        const QPoint at(glyph.x, glyph.row + top);
        FillPlate(tile, at, glyph.width, plate, ink);
        const std::string_view letter(&glyph.letter, 1);
        text.Write(tile, at + QPoint((glyph.width - text.WidthOf(letter) + 1) / 2, 3), letter, ink);
    }
}

}  // namespace

QImage PaintLabelSheet(const Studio& studio) {
    QImage picture(260, kBlocks * kBlockStep + 40, QImage::Format_RGB32);
    picture.fill(studio.palette["report.paper"]);
    Tile tile(picture.rect());
    for (int block = 0; block < kBlocks; ++block) {
        for (int style = 0; style < kStyles; ++style) {
            PutStyle(tile, studio, block * kBlockStep + style * kStyleStep,
                     kPlates[static_cast<std::size_t>(block * kStyles + style)]);
        }
    }
    Put(picture, tile, {0, 0});
    return picture;
}

}  // namespace varnstride::art
