#include "forge_art/palette.h"

#include <charconv>

#include "forge_art/art_source.h"

namespace varnstride::art {
namespace {

bool ReadColor(std::string_view digits, QRgb& color) {
    unsigned value = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, value, 16);
    color = 0xFF000000U | value;
    return digits.size() == 6 && read.ec == std::errc() && read.ptr == end;
}

}  // namespace

Palette Palette::Read(std::string_view text, SourceErrors& errors) {
    Palette palette;
    for (const KeyedLine& line : KeyedLines(text, errors)) {
        QRgb color = 0;
        if (!ReadColor(line.value, color)) {
            errors.Add(line.number, "\"" + line.value + "\" is no colour: expected six hex digits");
        } else if (!palette.colors_.emplace(line.key, color).second) {
            errors.Add(line.number, "the colour " + line.key + " is given twice");
        }
    }
    return palette;
}

QRgb Palette::operator[](std::string_view name) const {
    const auto found = colors_.find(name);
    if (found != colors_.end()) return found->second;
    missing_.insert(std::string(name));
    return qRgb(0, 0, 0);
}

}  // namespace varnstride::art
