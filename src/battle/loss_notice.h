// The notice that a unit has lost strength outside an exchange of blows: rout or surrender.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride {

struct LossNotice {
    int templateId;
    std::string caption;
};

// Shows the army, the unit and the strength points lost, and waits until it is put away.
void ShowLossNotice(Game& game, const LossNotice& notice, UnitId id, int loss);

}  // namespace varnstride
