// The letters of lettering.art: bars, plates and marks are written with them, so that no font of
// the machine has a say in a picture.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "forge/source_errors.h"
#include "forge_art/tile.h"

namespace varnstride::art {

// One size of letters.
struct LetterCase {
    std::map<char, std::vector<std::string>> letters;
    int height = 0;

    // The pixels that a text takes; a letter that the case lacks takes none. Letters stand a pixel
    // apart, enlarged by a whole factor.
    int WidthOf(std::string_view text, int factor = 1) const;
    // Writes with the top left corner at a point.
    void Write(Tile& tile, QPoint at, std::string_view text, QRgb color, int factor = 1) const;
};

struct Lettering {
    LetterCase text;    // capitals eight pixels high
    LetterCase digits;  // six pixels high

    static Lettering Read(std::string_view source, SourceErrors& errors);
};

}  // namespace varnstride::art
