#include "app/guards.h"

#include <string>

#include "actions/courier.h"
#include "model/units_on_map.h"

namespace varnstride {

bool HasCommandPoints(Game& game) {
    if (game.ArmyInPlay().commandPoints > 0) return true;
    Refuse(game, "End of Player Turn",
           "No Command Points remaining. Click egg-timer to move game on");
    return false;
}

bool IsTurnOpen(const Game& game) {
    return game.state.turnLocked == 0;
}

bool HasUnitInHand(const Game& game) {
    return game.state.selectedSlot > 0 && IsOnMap(game, game.InHandId());
}

void Refuse(Game& game, std::string_view caption, std::string_view text) {
    Alert(game);
    game.person->Confirm({std::string(caption), std::string(text)});
}

void ReleaseButtons(Game& game) {
    game.person->Redraw(View::Toolbar);
}

}  // namespace varnstride
