// The sound bed of a battle: a loop by the weather, or music. Never both.
#pragma once

#include "model/game.h"

namespace varnstride {

// Stops the ambient loop that plays.
void StopAmbient(Game& game);

// Starts the ambient loop of the visibility; music and the other loops stop.
void StartAmbient(Game& game);

// Stops what plays and, with music on, starts a track by chance.
void StartMusic(Game& game);

// What the settings ask for: music, the ambient loop, or nothing new.
void RestartBackgroundSound(Game& game);

}  // namespace varnstride
