// Guns that shell another area than their own: which of them can, how far they reach, laying one on
// its target area, and the fire that a shot may start. The player's orders and the computer's turn
// both come here; the shot of a player's gun is in called_attack.h.
#pragma once

#include <vector>

#include "model/game.h"

namespace varnstride {

// Whether the record is a gun on the map.
bool IsGunOnMap(const Game& game, UnitId id);

// Whether the unit has what a barrage takes of it: a gun on the map, two loads, Action Points, not
// routed.
bool IsReadyToBombard(const Game& game, UnitId id);

// Whether the enemy stands in the area of the unit. The census is that of the area afterwards.
bool HasEnemyInArea(Game& game, UnitId id);

// The guns of the army in play that can fire a barrage now, by index.
std::vector<UnitId> FindAbleGuns(Game& game);

// How many areas a gun throws, 1 or 2.
int ReachOfGun(const Game& game, UnitId gun);

// Takes the gun in hand, lights what it reaches and waits for the area. Its Action Points are its
// reach until the shot.
void AimGun(Game& game, UnitId gun);

// Gives the aim up, if there is one: the gun has the Action Points again that it had before.
void LayAimDown(Game& game);

// After a barrage of the unit in hand on the area in hand: one house in ten that is hit burns.
void CheckBuildingFire(Game& game);

}  // namespace varnstride
