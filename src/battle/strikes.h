// The two strikes of an attack. The attacker is the unit in hand, the target (targetArmy,
// targetUnit), the area's slots are in hand.
#pragma once

#include <span>

#include "battle/strike_ledger.h"
#include "battle/strike_tables.h"
#include "model/game.h"

namespace varnstride {

// Works out attackStrike, 0 to 50, and scales tacticalAdvantage for the report. Lights what lies
// within one area of the attacker; selectedCell becomes its cell.
StrikeLedger ComputeAttackStrike(Game& game);

// Works out defenceStrike, 0 to 50, of the target's answer, and streamCrossed.
StrikeLedger ComputeDefenceStrike(Game& game);

// What both strikes make of skirmishers, of guards whose army counts them for less, of a unit's
// order and of its formation.
void AddSkirmishLine(StrikeLedger& ledger, const Unit& unit);
void AddGuardOfArmy(StrikeLedger& ledger, int army, const Unit& unit);
void AddOrder(StrikeLedger& ledger, const Unit& unit);
void AddFormation(StrikeLedger& ledger, std::span<const FormationFactor> factors, const Unit& unit);

}  // namespace varnstride
