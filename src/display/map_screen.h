// The map as the window shows it: one finished frame, made from the view, the kept picture of the
// still layers, the units and marks over it, and the jump map if it is up. The window asks for a
// frame whenever something may have changed, scrolls the view, and turns clicks into cells here.
#pragma once

#include <optional>

#include "display/map_view.h"
#include "display/mini_map.h"
#include "display/world_picture.h"

namespace varnstride {

// The view that the settings ask for.
ViewKind ViewOf(const Settings& settings);

// Draws the scene of a view into the part of the frame that is its screen space; nothing else of
// the frame is touched.
void DrawScene(const Game& game, const Art& art, const MapView& view, WorldPicture& picture,
               Surface& frame);

class MapScreen {
 public:
    // The frame is as large as the client area of the window. The art must outlive the screen.
    MapScreen(const Art& art, int clientWidth, int clientHeight);

    // Begins a view from the top left corner; to be called when a battle has been opened. A change
    // of view, or of the size of the map, is noticed by Draw.
    void SetUp(const Game& game);
    // The client area has another size now.
    void Resize(int clientWidth, int clientHeight);

    // A new frame. Before SetUp, and while no battle is open, the map is black.
    const Surface& Draw(const Game& game);
    const Surface& Frame() const { return frame_; }

    // The view to scroll and to ask for cells; nothing before SetUp.
    MapView* View() { return view_ ? &*view_ : nullptr; }

    // The cell under a point of the client area, for a click on the map; held inside the grid.
    // Nothing before SetUp.
    std::optional<Cell> CellAt(Point point, const Game& game) const;

 private:
    void DrawMiniMap(const Game& game);

    const Art& art_;
    Surface frame_;
    std::optional<MapView> view_;
    std::optional<WorldPicture> picture_;
    MiniMap miniMap_;
    bool miniMapBuilt_ = false;
};

}  // namespace varnstride
