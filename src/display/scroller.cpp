#include "display/scroller.h"

namespace varnstride {
namespace {

int Held(int value, int low, int high) {
    return std::min(std::max(value, low), high - 1);
}

bool IsBetween(int value, int low, int high) {
    return value >= low && value <= high;
}

}  // namespace

void Scroller::BoundAnchor() {
    anchorSpace = worldSpace;
    anchorSpace.right = std::max(worldSpace.right - screenSpace.Width(), worldSpace.left + 1);
    anchorSpace.bottom = std::max(worldSpace.bottom - screenSpace.Height(), worldSpace.top + 1);
}

void Scroller::ScrollTo(Point point, bool clip) {
    anchor = point;
    if (!clip) return;
    if (limitX == ScrollLimit::Clip) anchor.x = Held(anchor.x, anchorSpace.left, anchorSpace.right);
    if (limitY == ScrollLimit::Clip) anchor.y = Held(anchor.y, anchorSpace.top, anchorSpace.bottom);
}

Point EdgePullOverFrame(int x, int screenWidth) {
    constexpr int kPull = 15;
    if (IsBetween(x, -9, -1)) return {-kPull, 0};
    if (IsBetween(x, screenWidth - 19, screenWidth)) return {kPull, 0};
    return {};
}

Point EdgePullInside(int y, int screenHeight) {
    if (IsBetween(y, screenHeight - 79, screenHeight - 71)) return {0, y - (screenHeight - 90)};
    if (IsBetween(y, 46, 59)) return {0, y - 60};
    return {};
}

}  // namespace varnstride
