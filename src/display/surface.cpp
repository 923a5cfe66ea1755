#include "display/surface.h"

namespace varnstride {

Surface::Surface(int width, int height, Pixel pixel)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), pixel) {
}

void Fill(Surface& surface, const Rect& area, Pixel pixel) {
    const Rect inside = Intersection(area, surface.Bounds());
    if (inside.IsEmpty()) return;
    for (int y = inside.top; y < inside.bottom; ++y) {
        std::fill(surface.Row(y) + inside.left, surface.Row(y) + inside.right, pixel);
    }
}

void DrawOutline(Surface& surface, const Rect& area, Pixel pixel) {
    Fill(surface, {area.left, area.top, area.right, area.top + 1}, pixel);
    Fill(surface, {area.left, area.bottom - 1, area.right, area.bottom}, pixel);
    Fill(surface, {area.left, area.top, area.left + 1, area.bottom}, pixel);
    Fill(surface, {area.right - 1, area.top, area.right, area.bottom}, pixel);
}

void Copy(const Surface& from, const Rect& source, Surface& to, Point target) {
    Copy(from, source, to, target, to.Bounds());
}

void Copy(const Surface& from, const Rect& source, Surface& to, Point target, const Rect& clip) {
    const Point shift = target - source.TopLeft();
    const Rect readable = Intersection(source, from.Bounds());
    const Rect inside = Intersection(readable.Moved(shift), Intersection(clip, to.Bounds()));
    if (readable.IsEmpty() || inside.IsEmpty()) return;
    for (int y = inside.top; y < inside.bottom; ++y) {
        const Pixel* row = from.Row(y - shift.y) - shift.x;
        std::copy(row + inside.left, row + inside.right, to.Row(y) + inside.left);
    }
}

}  // namespace varnstride
