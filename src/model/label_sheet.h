// Where the glyphs of place names lie on the sheet of labels. The art is drawn to these figures,
// and names are pieced together by them. The letters of each style of a block, and of each block,
// stand further down; they share one plate, which would lie under the letter p of the style before.
#pragma once

#include <array>

namespace varnstride {

constexpr int kLabelHeight = 15;  // of every piece
constexpr int kLabelStyles = 2;
constexpr int kLabelBlocks = 3;
constexpr int kLabelStyleStep = 71;   // rows from style to style
constexpr int kLabelBlockStep = 141;  // rows from block to block

// The bare plate, for a name's ends and the blanks in it.
constexpr int kLabelPlateX = 5;
constexpr int kLabelPlateY = 6;
constexpr int kLabelEndWidth = 7;
constexpr int kLabelBlankWidth = 5;

struct LabelGlyph {
    char letter;
    int x;
    int width;
    int row;
};

// clang-format off
constexpr std::array<LabelGlyph, 54> kLabelGlyphs = {{
    {'A', 19, 8, 40},   {'B', 37, 7, 39},   {'C', 53, 8, 39},   {'D', 69, 8, 39},   {'E', 85, 7, 39},
    {'F', 101, 7, 39},  {'G', 117, 8, 39},  {'H', 133, 8, 39},  {'I', 149, 4, 39},  {'J', 163, 6, 39},
    {'K', 177, 8, 39},  {'L', 193, 7, 39},  {'M', 209, 9, 39},  {'N', 225, 8, 39},  {'O', 241, 8, 39},
    {'P', 4, 7, 56},    {'Q', 20, 8, 56},   {'R', 36, 8, 56},   {'S', 52, 7, 56},   {'T', 68, 8, 56},
    {'U', 83, 8, 56},   {'V', 98, 8, 56},   {'W', 113, 12, 56}, {'X', 131, 8, 56},  {'Y', 147, 7, 56},
    {'Z', 163, 8, 56},  {'[', 181, 4, 55},  {']', 197, 4, 55},
    {'a', 19, 7, 72},   {'b', 36, 7, 72},   {'c', 53, 6, 72},   {'d', 69, 7, 72},   {'e', 86, 7, 72},
    {'f', 102, 6, 72},  {'g', 118, 7, 72},  {'h', 134, 7, 72},  {'i', 150, 3, 72},  {'j', 164, 5, 72},
    {'k', 179, 7, 72},  {'l', 196, 4, 72},  {'m', 211, 10, 72}, {'n', 227, 7, 72},  {'o', 243, 7, 72},
    {'p', 4, 7, 88},    {'q', 20, 7, 88},   {'r', 36, 6, 88},   {'s', 52, 6, 88},   {'t', 68, 6, 88},
    {'u', 83, 7, 88},   {'v', 98, 7, 88},   {'w', 113, 10, 88}, {'x', 131, 7, 88},  {'y', 147, 7, 88},
    {'z', 163, 7, 88},
}};
// clang-format on

constexpr int kLabelSheetWidth = 260;
constexpr int kLabelSheetHeight =
    (kLabelBlocks - 1) * kLabelBlockStep + (kLabelStyles - 1) * kLabelStyleStep + 104;

}  // namespace varnstride
