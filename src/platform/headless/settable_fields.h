// The fields that a script may set by name: those of the settings and of the whole-game state that
// hold one number, and the switches of the driver itself.
#pragma once

#include <optional>
#include <string>

#include "model/game.h"

namespace varnstride {

struct DriverSwitches {
    int traceDice = 0;  // 1: every die is an event
    int riders = 0;     // 1: every dispatch draws its rider as the window does
};

// Why the field cannot take the value; nothing when it can.
std::optional<std::string> WrongSetting(const std::string& field, double value);

// Sets the field, for which WrongSetting has nothing to say.
void SetField(Game& game, DriverSwitches& switches, const std::string& field, double value);

}  // namespace varnstride
