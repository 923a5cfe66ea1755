// The Objectives Dialog: the marked places of the field, who holds each, and what it is worth.
#pragma once

#include "model/game.h"

namespace varnstride {

void ShowObjectives(Game& game);

}  // namespace varnstride
