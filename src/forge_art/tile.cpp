#include "forge_art/tile.h"

#include <algorithm>

namespace varnstride::art {

void Tile::Lay(const Tile& other, QPoint at) {
    const QRect area = other.Area();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (!other.IsEmptyAt(x, y)) Set(x + at.x(), y + at.y(), other.At(x, y));
        }
    }
}

QRect Tile::Extent() const {
    int left = area_.right() + 1;
    int right = area_.left() - 1;
    int top = area_.bottom() + 1;
    int bottom = area_.top() - 1;
    for (int y = area_.top(); y <= area_.bottom(); ++y) {
        for (int x = area_.left(); x <= area_.right(); ++x) {
            if (pixels_[Index(x, y)] == 0) continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = y;
        }
    }
    return right < left ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

Tile Mirrored(const Tile& tile) {
    const QRect area = tile.Area();
    Tile mirrored(QRect(-area.right(), area.top(), area.width(), area.height()));
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (!tile.IsEmptyAt(x, y)) mirrored.Set(-x, y, tile.At(x, y));
        }
    }
    return mirrored;
}

}  // namespace varnstride::art
