// What a person can do to a battle in hand, carried out: the commands, keys and clicks that a
// script names and a random player thinks up.
#pragma once

#include <variant>

#include "model/game.h"
#include "platform/headless/script.h"

namespace varnstride {

using BattleInput = std::variant<GiveCommand, PressKey, ClickMap, ClickPanel, PressCard, TickClock>;

// A battle must be open.
void Perform(Game& game, const BattleInput& input);

// The input as a line of a script.
std::string ToScript(const BattleInput& input);

}  // namespace varnstride
