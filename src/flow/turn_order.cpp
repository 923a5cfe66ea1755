#include "flow/turn_order.h"

#include "battle/weather.h"

namespace varnstride {

void AdvanceTurnCursor(Game& game) {
    int& cursor = game.state.turnCursor;
    ++cursor;
    while (cursor <= kLastPlayingArmy && game.Army(cursor).present == 0)
        ++cursor;
    if (cursor > kLastPlayingArmy) cursor = kFrench;
}

void StartNewGameTurn(Game& game) {
    constexpr double kHalfHour = 0.3;
    ++game.state.gameTurn;
    game.state.clockHours = NormalisedClock(game.state.clockHours + kHalfHour);
    game.person->Redraw(View::InfoBar);
}

std::string TurnText(const Game& game) {
    return "Game Turn : " + std::to_string(game.state.gameTurn) + "  of  " +
           std::to_string(game.header.lastTurn) + "+ ";
}

int TimeShown(const Game& game) {
    return static_cast<int>(game.state.clockHours * 100);
}

}  // namespace varnstride
