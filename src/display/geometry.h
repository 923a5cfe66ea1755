// Points and rectangles in pixels, of the screen, of the world or of a sheet. Right and bottom of
// a rectangle lie outside it.
#pragma once

#include <algorithm>

namespace varnstride {

struct Point {
    int x = 0;
    int y = 0;

    friend constexpr Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr Point TopLeft() const { return {left, top}; }
    constexpr bool IsEmpty() const { return left >= right || top >= bottom; }
    constexpr bool Holds(Point point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    constexpr Rect Moved(Point by) const {
        return {left + by.x, top + by.y, right + by.x, bottom + by.y};
    }
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

constexpr Rect Intersection(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

// The smallest rectangle around both; an empty one adds nothing.
constexpr Rect Union(const Rect& a, const Rect& b) {
    if (a.IsEmpty()) return b;
    if (b.IsEmpty()) return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

// Division and remainder that round towards minus infinity; the divisor is above 0.
constexpr int FloorDivide(int value, int by) {
    return value / by - (value % by < 0 ? 1 : 0);
}
constexpr int FloorRemainder(int value, int by) {
    return value - FloorDivide(value, by) * by;
}

}  // namespace varnstride
