#include "forge_art/lettering.h"

#include <algorithm>

#include "forge/source_text.h"
#include "forge_art/art_source.h"

namespace varnstride::art {
namespace {

constexpr int kBlank = 3;
constexpr int kGap = 1;
constexpr char kInk = '#';

// Reads the bands of one case: a row of names, then the rows of those letters.
LetterCase ReadCase(const Drawing& drawing, SourceErrors& errors) {
    LetterCase letters;
    std::vector<char> names;
    for (const std::string& row : drawing.rows) {
        const auto words = Words(row);
        const bool isHeading = words.front() == "=";
        if (isHeading) {
            names.clear();
            for (std::size_t i = 1; i < words.size(); ++i)
                names.push_back(words[i].front());
            continue;
        }
        if (words.size() != names.size()) {
            errors.Add(drawing.number, "the row \"" + row +
                                           "\" has another number of letters "
                                           "than its heading");
            continue;
        }
        for (std::size_t i = 0; i < words.size(); ++i) {
            letters.letters[names[i]].emplace_back(words[i]);
            letters.height =
                std::max(letters.height, static_cast<int>(letters.letters[names[i]].size()));
        }
    }
    return letters;
}

}  // namespace

int LetterCase::WidthOf(std::string_view text, int factor) const {
    int width = 0;
    for (const char letter : text) {
        const auto found = letters.find(letter);
        if (letter == ' ') width += kBlank + kGap;
        if (found != letters.end()) width += static_cast<int>(found->second.front().size()) + kGap;
    }
    return width * factor;
}

void LetterCase::Write(Tile& tile, QPoint at, std::string_view text, QRgb color, int factor) const {
    int x = at.x();
    for (const char letter : text) {
        const auto found = letters.find(letter);
        if (found != letters.end()) {
            for (int y = 0; y < static_cast<int>(found->second.size()) * factor; ++y) {
                const std::string& row = found->second[static_cast<std::size_t>(y / factor)];
                for (int i = 0; i < static_cast<int>(row.size()) * factor; ++i) {
                    if (row[static_cast<std::size_t>(i / factor)] == kInk)
                        tile.Set(x + i, at.y() + y, color);
                }
            }
        }
        x += WidthOf(std::string_view(&letter, 1), factor);
    }
}

Lettering Lettering::Read(std::string_view source, SourceErrors& errors) {
    Lettering lettering;
    for (const Drawing& drawing : Drawings(source, errors)) {
        if (drawing.name == "letters") {
            lettering.text = ReadCase(drawing, errors);
        } else if (drawing.name == "digits") {
            lettering.digits = ReadCase(drawing, errors);
        } else {
            errors.Add(drawing.number, "unknown heading \"" + drawing.name + "\"");
        }
    }
    return lettering;
}

}  // namespace varnstride::art
