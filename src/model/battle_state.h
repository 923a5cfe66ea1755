// The variables of one attack and of the area battle around it, rewritten by each.
#pragma once

#include <array>

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

    // The area battle around the attack.
    int attackingSlots = 0;  // own slots that hold a unit able to attack
    int primaryFound = 0;
    std::array<int, 3> enemySlotUnit{};  // record of the fighting unit in each enemy slot
    int enemySlotsFilled = 0;            // how many in a row from the first hold such a unit
    int enemyLightHere = 0;              // light infantry
    int enemyLineHere = 0;               // any other foot
    int enemyCavalryHere = 0;
    int enemyGunsHere = 0;
    int enemySquares = 0;
    int enemyRouted = 0;
    int enemyShaken = 0;
    int ownLight = 0;
    int ownLine = 0;
    int ownCavalry = 0;
    int ownGuns = 0;
    int noTactics = 0;
    int combinedArms = 0;
    int combinedLeadership = 0;
    int requiredLeadership = 0;
    int chosenTactic = 0;      // Tactic
    int tacticalResponse = 0;  // TacticalResponse
    int tacticalAdvantage = 0;
    int resultMark = 0;
    int surrenderLoss = 0;
};

}  // namespace varnstride
