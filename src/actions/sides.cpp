#include "actions/sides.h"

namespace varnstride {

bool IsComputerSide(int computerSide, int army) {
    if (computerSide == kComputerPlaysBoth) return true;
    return SideOf(army) == Side::French ? computerSide == kComputerPlaysFrench
                                        : computerSide == kComputerPlaysAllies;
}

bool IsComputerTurn(const Game& game) {
    return game.state.gameMode == GameMode::Local &&
           IsComputerSide(game.settings.computerSide, game.state.currentArmy);
}

bool IsHumanArmy(const Game& game) {
    return game.header.playByEmail > 0 ||
           !IsComputerSide(game.settings.computerSide, game.state.currentArmy);
}

bool IsHumanViewer(const Game& game) {
    return !IsComputerSide(game.state.computerPlays, game.state.currentArmy);
}

bool HumanOrOpenMap(const Game& game) {
    return !IsComputerSide(game.settings.computerSide, game.state.currentArmy) ||
           game.header.fogNone == 1;
}

bool HasFogOfWar(const Game& game) {
    return game.header.fogNormal == 1 || game.header.fogExtreme == 1;
}

}  // namespace varnstride
