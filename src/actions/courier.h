// The one way of telling the player what the rules have done: a dispatch by number.
#pragma once

#include "model/game.h"

namespace varnstride {

// Shows the message of a code and waits until it is put away. A code from 200 on is about the unit
// in hand. A code without words shows an empty message.
void ShowCourier(Game& game, int code);

// The refusal sound, unless the player has switched it off.
void Alert(Game& game);

// A sound of battle and march, when those are on.
void PlayBattleSound(Game& game, Sound sound);

}  // namespace varnstride
