#include "battle/event_cards.h"

namespace varnstride {

void DrawEventCard(Game&) {
}

void ClearCardEffects(Game& game) {
    GameState& state = game.state;
    state.strikeDrawCard = 0;
    state.steadyNerves = 0;
    state.haltBeforeContact = false;
    state.noCloseEntry = false;
    state.alliesApart = false;
    constexpr int kStrikeCardCode = 1;
    if (game.options.weatherCardCode == kStrikeCardCode) game.options.weatherCardCode = 0;
}

}  // namespace varnstride
