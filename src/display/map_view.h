// One view of the map on the screen: where its cells lie, which part of it shows, and the way back
// from a pixel to a cell. Set up afresh when the view changes or a battle is opened.
#pragma once

#include "display/art.h"
#include "display/plotter.h"
#include "display/scroller.h"
#include "model/grid.h"

namespace varnstride {

// The map lies below the menu and the two strips, and reaches to the right and lower edge.
constexpr Rect MapSpace(int clientWidth, int clientHeight) {
    return {5, 65, clientWidth, clientHeight};
}

class MapView {
 public:
    // The art must outlive the view. The anchor starts at (0, 0).
    MapView(const Art& art, ViewKind kind, const Grid& grid, const Rect& screenSpace);

    ViewKind Kind() const { return kind_; }
    const Plotter& Plot() const { return plotter_; }
    const Scroller& Scroll() const { return scroller_; }
    bool IsFor(ViewKind kind, const Grid& grid) const {
        return kind == kind_ && grid.Width() == width_ && grid.Height() == height_;
    }

    // Puts the view elsewhere on the screen, or gives it another size; the anchor stays as far as
    // the map allows.
    void SetScreenSpace(const Rect& screenSpace);

    void ScrollTo(Point anchor, bool clip) { scroller_.ScrollTo(anchor, clip); }
    void ScrollBy(int dx, int dy, bool clip) { scroller_.ScrollBy(dx, dy, clip); }
    // Brings a cell that is out of view a quarter into it from the top left; whether the view
    // moved.
    bool CentreOnCell(Cell cell);

    // The cell under a point of the screen. It may lie off the grid: Grid::Clamped brings it back.
    Cell ScreenToCell(Point point) const;
    // The screen position of a cell's anchor.
    Point CellToScreen(Cell cell) const { return scroller_.WorldToScreen(plotter_.PlotCell(cell)); }

 private:
    const MouseMap* footprint_;
    ViewKind kind_;
    int width_;
    int height_;
    Plotter plotter_;
    Scroller scroller_;
    Point reference_;  // where the footprint of cell (0, 0) begins in the world
};

// The pixels that columns 1 to width - 2 and all rows cover, a cell's rectangle around its anchor
// given.
Rect WorldOf(const Plotter& plotter, const Rect& cellRect, int width, int height);

}  // namespace varnstride
