// Laying guns on an area that is not their own: by the list of all that can, or the gun in hand.
#pragma once

#include "model/game.h"

namespace varnstride {

// Shows the guns that can fire a barrage: one is aimed, or looked up on the map.
void ChooseGunToAim(Game& game);

// Aims the gun in hand, or tells why it cannot be.
void AimUnitInHand(Game& game);

}  // namespace varnstride
