// Where on the screen the view of a bigger world lies, and which part of that world it shows. The
// map and the jump map have one each.
#pragma once

#include "display/geometry.h"

namespace varnstride {

enum class ScrollLimit { None, Clip };

struct Scroller {
    Rect screenSpace;  // where the view lies on the screen
    Rect worldSpace;   // the pixels that the whole map covers
    Rect anchorSpace;  // what the anchor may be: from the low bound to just below the high one
    Point anchor;      // the world pixel shown at the top left of screenSpace
    ScrollLimit limitX = ScrollLimit::None;
    ScrollLimit limitY = ScrollLimit::None;

    Point ScreenToWorld(Point point) const { return point - screenSpace.TopLeft() + anchor; }
    Point WorldToScreen(Point point) const { return point - anchor + screenSpace.TopLeft(); }

    // The part of the world that is on the screen.
    Rect Shown() const {
        return {anchor.x, anchor.y, anchor.x + screenSpace.Width(),
                anchor.y + screenSpace.Height()};
    }

    // Works out anchorSpace from the two other spaces. A map smaller than the view leaves the
    // anchor one place.
    void BoundAnchor();

    // Move the anchor; with clip it is then held inside anchorSpace on each axis with that limit.
    void ScrollTo(Point point, bool clip);
    void ScrollBy(int dx, int dy, bool clip) { ScrollTo(anchor + Point{dx, dy}, clip); }
};

// How far an arrow key moves the anchor, without clipping; the next frame brings it back in range.
constexpr int kArrowScroll = 20;

// The pull of the mouse on the map for each frame while it rests near an edge: over the frame of
// the window, at a column of the client area below 0 or near the screen's right end; and inside
// the client area, at a row near its top or bottom.
Point EdgePullOverFrame(int x, int screenWidth);
Point EdgePullInside(int y, int screenHeight);

}  // namespace varnstride
