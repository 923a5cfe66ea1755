#include "app/info_bar.h"

#include <optional>

#include "battle/weather.h"
#include "flow/turn_order.h"
#include "model/terrain.h"

namespace varnstride {
namespace {

std::optional<Cell> CursorCell(const Game& game) {
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x) {
            if (game.grid.At({x, y}).selected == 1) return Cell{x, y};
        }
    }
    return std::nullopt;
}

// A cell of no area is judged by the area looked up last.
bool LiesInCloseArea(const Game& game, Cell cell) {
    const int ordinal = game.grid.AreaOf(cell);
    const AreaSlots slots =
        ordinal > 0 ? game.atlas->Row(ordinal).Slots() : game.state.currentAreaSlots;
    return CountSlotsThat(game, slots, IsNotOpen) >= kCloseTerrain;
}

}  // namespace

InfoBar DescribeInfoBar(const Game& game) {
    InfoBar bar;
    if (const std::optional<Cell> cell = CursorCell(game)) {
        bar.terrain = DescribeTerrain(game, *cell);
        bar.terrain += LiesInCloseArea(game, *cell) ? " / Close" : " / Open";
    }
    bar.turn = TurnText(game);
    bar.time = std::to_string(static_cast<int>(NormalisedClock(game.state.clockHours) * 100));
    return bar;
}

}  // namespace varnstride
