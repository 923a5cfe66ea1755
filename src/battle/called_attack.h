// The attacks that a player calls for in the midst of his orders, a barrage and a Do Battle: the
// order is given first, and the next left click on a lit cell names the area.
#pragma once

#include "model/game.h"

namespace varnstride {

// Whether one of the two waits for its area.
bool AwaitsArea(const Game& game);

// Fights the attack that waits against the enemy in the area of the clicked cell. Nothing happens
// while selectedCell is dark or the unit in hand cannot pay. Without an enemy there the player is
// told, and the order goes on waiting.
void FightCalledAttack(Game& game, Cell clicked);

}  // namespace varnstride
