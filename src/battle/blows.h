// What the two sides of an attack do to each other: the blow of the attacker, the answer of the
// target, and the strength and morale that they cost.
#pragma once

#include "model/game.h"

namespace varnstride {

// The attacker strikes: defenderHit and defenderLoss, of which the target feels nothing yet.
void StrikeTheTarget(Game& game);

// The target answers if it keeps its nerve, and the attacker bears the answer at once.
void LetTheTargetAnswer(Game& game);

// The morale that the blow costs the target, and its disorder.
void ShakeTheTarget(Game& game);

// Who stands beside a target that this attack has routed wavers too.
void SpreadRout(Game& game);

void SpendAmmunition(Unit& attacker, bool barrage);

// The strength that the blow costs the target, or its end: resultMark.
void TakeTargetLoss(Game& game);

// Books defenderLoss and attackerLoss for the score.
void BookAttackLosses(Game& game);

// Closes up the army's slots in the area that one of its units has left.
void CloseUpArmy(Game& game, int army, Cell left);

}  // namespace varnstride
