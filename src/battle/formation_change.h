// Orders to the formation of the unit in hand. Before the enemy a unit must hold its nerve for it;
// a refusal leaves its code in courierCode for the caller to show.
#pragma once

#include "model/game.h"

namespace varnstride {

// The buttons of the Formation Change dialog, and what each orders.
enum class FormationButton {
    MarchColumn = 1452,
    OpenOrder = 1454,
    Square = 1455,
    MixedOrder = 1456,
    AttackColumn = 1457,
    Line = 1458,
    Dismount = 1488,
};

// Carries out the order of a button for the unit in hand, or refuses it.
void OrderFormation(Game& game, FormationButton button);

// A marching unit on dense ground cannot deploy: it falls out of formation, at the price of an
// order. Whether that happened.
bool BreakMarchOnDenseGround(Game& game);

}  // namespace varnstride
