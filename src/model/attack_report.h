// What an attack came to, told to the person once its losses are booked: the result box or the
// numbers on the map show it.
#pragma once

#include <string>
#include <vector>

#include "model/unit.h"

namespace varnstride {

struct AttackReport {
    UnitId attacker;
    UnitId target;
    std::string attackerName;
    std::string targetName;
    int attackStrike = 0;
    int defenceStrike = 0;
    int defenderHit = 0;             // morale the target lost to the blow
    int attackerHit = 0;             // morale the attacker lost to the answer
    int defenderLoss = 0;            // strength points
    int attackerLoss = 0;            // strength points
    std::vector<std::string> lines;  // the list of the result box: what counted in the strike
};

}  // namespace varnstride
