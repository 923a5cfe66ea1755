// The sixteen passes of the computer's turn, in their order. Each goes through the army in play by
// rising record and looks at every unit by itself; the next begins when it is through. Points are
// spent as they go: an army with few of them forms and bombards and does not advance.
#pragma once

#include "opponent/target_pick.h"

namespace varnstride {

// readying_passes.cpp
void ReleaseUnits(Game& game);
void DeployFromMarch(Game& game);
void ResupplyUnits(Game& game);
void DetachSupports(Game& game);
void FormUpFirst(Game& game);  // form_up.cpp
void RallyUnits(Game& game);

void MoveLeaders(Game& game);                            // march_passes.cpp
void BombardFromAfar(Game& game, TargetMarks& marks);    // attack_passes.cpp
void HoldObjectives(Game& game);                         // victory_passes.cpp
void StandDown(Game& game);                              // holding_passes.cpp
void StayInContact(Game& game);                          // holding_passes.cpp
void ChargeWithCavalry(Game& game, TargetMarks& marks);  // attack_passes.cpp
void AttackTheWeaker(Game& game, TargetMarks& marks);    // attack_passes.cpp
void MakeForVictoryAreas(Game& game);                    // victory_passes.cpp
void AdvanceGenerally(Game& game);                       // march_passes.cpp
void FormUpLast(Game& game);                             // form_up.cpp

}  // namespace varnstride
