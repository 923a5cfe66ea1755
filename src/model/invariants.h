// What holds for the records of a battle between two actions of a player, whatever has happened.
// The checks of random games and of the duels of the driver ask here.
#pragma once

#include <string>
#include <vector>

#include "model/game.h"

namespace varnstride {

// The computer's passes may spend more Command Points than an army has; a person never can.
enum class Overspending { Never, ByTheComputer };

// One line for each rule that is broken, naming the record: "army 0 unit 12: morale 9 is not within
// 0 to 8". Nothing when all hold, or when no battle is open.
std::vector<std::string> BrokenInvariants(const Game& game, Overspending overspending);

}  // namespace varnstride
