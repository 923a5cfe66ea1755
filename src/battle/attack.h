// One attack: a unit of the army in turn against an enemy unit of the same area.
#pragma once

#include "model/game.h"

namespace varnstride {

// Sets terrainDefence, 0 to 4, for the area in hand.
void ComputeTerrainDefence(Game& game);

// Fights one attack. The caller has filled the area's slots, the enemy's units, terrainDefence and
// primaryCell. currentArmy and currentUnit are left as they were; without an attacker on
// primaryCell nothing is fought and currentUnit is 0.
void ResolveAttack(Game& game);

// The same against a target that somebody has named, whomever the attacker would pick himself.
void ResolveAttackOn(Game& game, UnitId target);

}  // namespace varnstride
