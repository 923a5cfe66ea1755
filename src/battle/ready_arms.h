// Which arms of the army in turn stand ready to attack in the area in hand.
#pragma once

#include "model/game.h"

namespace varnstride {

struct ReadyArms {
    bool light = false;
    bool line = false;
    bool cavalry = false;
    bool guns = false;

    // Two of line, horse and guns; light infantry belongs to none of them.
    bool Combine() const { return (line ? 1 : 0) + (cavalry ? 1 : 0) + (guns ? 1 : 0) > 1; }
};

// Whether a unit of the area in hand can join its attack: armed, steady and on the map.
bool IsReadyToAttack(const Game& game, UnitId id);

ReadyArms ArmsReady(const Game& game);

}  // namespace varnstride
