// The lettering of the map: place names on plates, words of the top bar, the letter of a stand-in
// tile. Letters a to z and A to Z, the two square brackets, digits and the blank have a shape;
// every other character is passed over without a gap.
#pragma once

#include <string_view>

#include "display/surface.h"

namespace varnstride {

constexpr int kGlyphHeight = 11;

// The pixels that a text takes, the gap behind each letter included.
int TextWidth(std::string_view text);

// Draws a text with its top left corner at a point. What lies outside the clip rectangle or the
// surface is left out.
void DrawText(Surface& surface, const Rect& clip, Point at, std::string_view text, Pixel pixel);

}  // namespace varnstride
