// The variables of one attack and of the area battle around it, rewritten by each.
#pragma once

#include "model/cell.h"
#include "model/unit.h"

namespace varnstride {

struct BattleState {
    int targetArmy = 0;
    int targetUnit = 0;
    Cell primaryCell;  // slot cell whose unit makes the attack
    int terrainDefence = 0;
    bool attackRunning = false;  // a census then leaves targetArmy alone
    int defenderTested = 0;
    UnitId testedAgainst;  // the attacker, while the target is tested
    int moraleHeld = 0;
    int testScore = 0;
    int requiredLeadership = 0;
    int tacticalAdvantage = 0;
    int resultMark = 0;
    int surrenderLoss = 0;
};

}  // namespace varnstride
