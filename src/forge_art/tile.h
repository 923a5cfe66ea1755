// One picture of a sheet while it is painted: pixels round an anchor at (0,0), opaque or empty and
// nothing between. Painters fill it, the sheet writer lays it out.
#pragma once

#include <QPoint>
#include <QRect>
#include <QRgb>
#include <vector>

namespace varnstride::art {

class Tile {
 public:
    Tile() : Tile(QRect(0, 0, 1, 1)) {}
    // An empty tile that can hold pixels of this area.
    explicit Tile(QRect area)
        : area_(area),
          pixels_(static_cast<std::size_t>(area.width()) *
                  static_cast<std::size_t>(area.height())) {}

    QRect Area() const { return area_; }

    // The colour of a pixel; 0 for an empty one and outside the area.
    QRgb At(int x, int y) const { return area_.contains(x, y) ? pixels_[Index(x, y)] : 0; }
    bool IsEmptyAt(int x, int y) const { return At(x, y) == 0; }
    // Outside the area nothing happens.
    void Set(int x, int y, QRgb color) {
        if (area_.contains(x, y)) pixels_[Index(x, y)] = color | 0xFF000000U;
    }
    void Clear(int x, int y) {
        if (area_.contains(x, y)) pixels_[Index(x, y)] = 0;
    }

    // Lays the pixels of another tile over this one, its anchor at a point of this one.
    void Lay(const Tile& other, QPoint at = {0, 0});

    // The smallest rectangle that holds every opaque pixel; empty for an empty tile.
    QRect Extent() const;

    // Calls change(colour, x, y) for every opaque pixel and takes the colour that it gives.
    template <typename Change>
    void Recolor(Change change);

 private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y - area_.top()) * static_cast<std::size_t>(area_.width()) +
               static_cast<std::size_t>(x - area_.left());
    }

    QRect area_;
    std::vector<QRgb> pixels_;
};

template <typename Change>
void Tile::Recolor(Change change) {
    for (int y = Area().top(); y <= Area().bottom(); ++y) {
        for (int x = Area().left(); x <= Area().right(); ++x) {
            if (!IsEmptyAt(x, y)) Set(x, y, change(At(x, y), x, y));
        }
    }
}

// The tile with its left and right sides exchanged; the anchor stays.
Tile Mirrored(const Tile& tile);

// Puts a border of one pixel round everything opaque, of the colour that line(x, y) gives.
template <typename Line>
Tile Outlined(const Tile& tile, Line line);

template <typename Line>
Tile Outlined(const Tile& tile, Line line) {
    const QRect area = tile.Area().adjusted(-1, -1, 1, 1);
    Tile outlined(area);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const bool touches = !tile.IsEmptyAt(x - 1, y) || !tile.IsEmptyAt(x + 1, y) ||
                                 !tile.IsEmptyAt(x, y - 1) || !tile.IsEmptyAt(x, y + 1);
            if (!tile.IsEmptyAt(x, y)) {
                outlined.Set(x, y, tile.At(x, y));
            } else if (touches) {
                outlined.Set(x, y, line(x, y));
            }
        }
    }
    return outlined;
}

}  // namespace varnstride::art
