// The variables of one attack and of the area battle around it, rewritten by each. The attacker is
// always the unit in hand, the target (targetArmy, targetUnit). Outside an attack targetUnit is 0.
#pragma once

#include <array>
#include <vector>

#include "model/attack_report.h"
#include "model/cell.h"
#include "model/unit.h"

namespace varnstride {

struct BattleState {
    // Who fights whom.
    int targetArmy = 0;
    int targetUnit = 0;
    Cell primaryCell;                    // slot cell whose unit makes the attack
    Cell targetPlace;                    // where the target stood when the attack began
    std::array<int, 3> enemySlotUnit{};  // fighting units of targetArmy in the enemy's slots
    int enemySlotsFilled = 0;            // how many of them in a row from the first
    bool attackRunning = false;          // a census then leaves targetArmy alone
    int computerBarrage = 0;             // attacker and target are set by the computer

    // The circumstances.
    int terrainDefence = 0;  // 0 to 4
    int areaOnFire = 0;
    int combinedArms = 0;
    int attackingSlots = 0;
    int chosenTactic = 0;      // 0 to 9
    int tacticalResponse = 0;  // 0 to 9
    int tacticalAdvantage = 0;
    int combinedLeadership = 0;
    int requiredLeadership = 0;

    // The forces of the area that is fought over.
    int primaryFound = 0;
    int enemyLightHere = 0;  // light infantry
    int enemyLineHere = 0;   // any other foot
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

    // The strikes and what they did.
    int attackStrike = 0;
    int defenceStrike = 0;
    std::vector<StrikeTerm> attackTerms;
    std::vector<StrikeTerm> defenceTerms;
    int defenderHit = 0;   // morale
    int attackerHit = 0;   // morale
    int defenderLoss = 0;  // strength points
    int attackerLoss = 0;  // strength points
    int attackGoes = 0;
    int targetAlreadyRouted = 0;
    int streamCrossed = 0;
    int counterCharged = 0;
    int resultMark = 0;  // 0 nothing, 4 destroyed on its retreat, 5 survived, 6 eliminated
    int surrenderLoss = 0;

    // The test of nerve.
    int moraleHeld = 0;
    int defenderTested = 0;  // 1 while attacker and target have changed places for the test
    int testScore = 0;
};

}  // namespace varnstride
