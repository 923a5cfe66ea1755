// A picture in memory. Everything that is drawn is drawn on one of these: the frame of the window,
// the sheets, the jump map; the window only shows the finished frame.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "display/geometry.h"

namespace varnstride {

// Red, green and blue, eight bits each; the highest byte is always 255.
using Pixel = std::uint32_t;

constexpr Pixel MakePixel(int red, int green, int blue) {
    return 0xFF000000U | static_cast<Pixel>(red) << 16 | static_cast<Pixel>(green) << 8 |
           static_cast<Pixel>(blue);
}
constexpr int RedOf(Pixel pixel) {
    return static_cast<int>(pixel >> 16 & 255U);
}
constexpr int GreenOf(Pixel pixel) {
    return static_cast<int>(pixel >> 8 & 255U);
}
constexpr int BlueOf(Pixel pixel) {
    return static_cast<int>(pixel & 255U);
}

constexpr Pixel kBlack = MakePixel(0, 0, 0);
constexpr Pixel kWhite = MakePixel(255, 255, 255);

class Surface {
 public:
    Surface() = default;
    Surface(int width, int height, Pixel pixel = kBlack);

    int Width() const { return width_; }
    int Height() const { return height_; }
    Rect Bounds() const { return {0, 0, width_, height_}; }

    // The pixels of a row from its left end; rows follow each other without a gap.
    Pixel* Row(int y) { return pixels_.data() + Offset(y); }
    const Pixel* Row(int y) const { return pixels_.data() + Offset(y); }
    // A pixel inside the bounds.
    Pixel& At(int x, int y) { return Row(y)[x]; }
    Pixel At(int x, int y) const { return Row(y)[x]; }

    friend bool operator==(const Surface&, const Surface&) = default;

 private:
    std::size_t Offset(int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Pixel> pixels_;
};

// What lies outside the surface is left out.
void Fill(Surface& surface, const Rect& area, Pixel pixel);
// The outline of the rectangle, one pixel wide, inside it.
void DrawOutline(Surface& surface, const Rect& area, Pixel pixel);
// Copies the part `source` of a picture to `target`, opaque; what lies outside either picture, or
// outside the clip rectangle of the target, is left out.
void Copy(const Surface& from, const Rect& source, Surface& to, Point target, const Rect& clip);
void Copy(const Surface& from, const Rect& source, Surface& to, Point target);

}  // namespace varnstride
