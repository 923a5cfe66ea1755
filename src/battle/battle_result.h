// How an attack is told: its noise, and the result box or the two numbers on the map.
#pragma once

#include "model/game.h"

namespace varnstride {

void PlayAttackSounds(Game& game);

// Tells the person of the attack and shows it in the way that the settings ask for. The attacker
// cannot attack again; with the result box he has spent his Action Points.
void ReportAttack(Game& game);

}  // namespace varnstride
