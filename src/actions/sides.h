// Who plays whom: the questions that rules ask before they speak to a person.
#pragma once

#include "model/game.h"

namespace varnstride {

constexpr int kComputerPlaysFrench = 1;
constexpr int kComputerPlaysAllies = 2;
constexpr int kComputerPlaysBoth = 3;  // nobody is a person; no dialog offers this

// Whether the computer would play the side of that army.
bool IsComputerSide(int computerSide, int army);

// Whether the army in play has its turn played by the computer.
bool IsComputerTurn(const Game& game);

// Whether a person gives the orders of the army in play.
bool IsHumanArmy(const Game& game);

// Whether the person at the screen looks on from the side of the army in play.
bool IsHumanViewer(const Game& game);

// The same, or the map is open: what the army in play does may be told.
bool HumanOrOpenMap(const Game& game);

// Whether either kind of fog of war is on.
bool HasFogOfWar(const Game& game);

}  // namespace varnstride
