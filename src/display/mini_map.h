// The jump map: the whole battlefield at four pixels a cell, laid over the top left corner of the
// map. Its tables are made when it is switched on and stay as they are while it is up, so that
// units that move are not shown moved until it is switched on again.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "display/art.h"
#include "display/map_view.h"
#include "display/plotter.h"
#include "display/scroller.h"
#include "model/game.h"

namespace varnstride {

class MiniMap {
 public:
    // The art must outlive the map.
    explicit MiniMap(const Art& art) : art_(art) {}

    // Works out the tile of every cell.
    void Build(const Game& game);

    // Lays the map into the frame with its top left corner at a point. On a screen wider than 1200
    // pixels a red box marks what the normal view shows.
    void Draw(const MapView& view, int screenWidth, Surface& frame, Point target);

 private:
    struct MiniCell {
        int base = 0;
        int edge = 0;  // 0: none
        int road = 0;  // 0: none
    };

    void DrawCells();
    void DrawViewBox(const MapView& view, int screenWidth);

    const Art& art_;
    int width_ = 0;
    int height_ = 0;
    std::vector<MiniCell> cells_;  // by rows
    Plotter plotter_{4, 8};
    Scroller scroller_;
    Surface surface_;
};

// The tile of the jump map's own sheet for a cell, units and objectives included.
int MiniTileOf(const Game& game, Cell cell);

// The cell for which a point of the open jump map stands, not held inside the grid; nothing for a
// point outside the map. The point counts from the window's corner, the map lies at (5, 65).
std::optional<Cell> JumpCell(Point point, const Grid& grid);

// Whether the menu switches the jump map over on a screen of that height, and if not, what it says.
struct JumpMapRoom {
    bool fits = true;
    std::string_view refusal;  // in a box titled "Jump Map"; empty: nothing is said
};
JumpMapRoom RoomForJumpMap(int screenHeight, int mapHeight);
// What the key J says beside switching it over; empty: nothing.
std::string_view JumpMapKeyWarning(int screenHeight, int mapHeight);

}  // namespace varnstride
