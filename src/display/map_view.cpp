#include "display/map_view.h"

namespace varnstride {

MapView::MapView(const Art& art, ViewKind kind, const Grid& grid, const Rect& screenSpace)
    : footprint_(&art.Footprint(kind)),
      kind_(kind),
      width_(grid.Width()),
      height_(grid.Height()),
      plotter_{footprint_->Width(), footprint_->Height()} {
    const Rect cellRect = art.CellRect(kind);
    reference_ = plotter_.PlotCell({0, 0}) + cellRect.TopLeft();
    scroller_.worldSpace = WorldOf(plotter_, cellRect, width_, height_);
    scroller_.limitX = scroller_.limitY = ScrollLimit::Clip;
    scroller_.screenSpace = screenSpace;
    scroller_.BoundAnchor();
}

void MapView::SetScreenSpace(const Rect& screenSpace) {
    scroller_.screenSpace = screenSpace;
    scroller_.BoundAnchor();
    scroller_.ScrollBy(0, 0, true);
}

bool MapView::CentreOnCell(Cell cell) {
    const Rect& space = scroller_.screenSpace;
    if (space.Holds(CellToScreen(cell))) return false;
    scroller_.ScrollTo(plotter_.PlotCell(cell) - Point{space.Width() / 4, space.Height() / 4},
                       true);
    return true;
}

Cell MapView::ScreenToCell(Point point) const {
    return footprint_->CellAt(scroller_.ScreenToWorld(point) - reference_);
}

Rect WorldOf(const Plotter& plotter, const Rect& cellRect, int width, int height) {
    Rect world;
    for (int y = 0; y < height; ++y) {
        for (int x = 1; x + 1 < width; ++x)
            world = Union(world, cellRect.Moved(plotter.PlotCell({x, y})));
    }
    return world;
}

}  // namespace varnstride
