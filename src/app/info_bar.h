// The information bar over the map: what ground was clicked, the game turn, the time of day.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride {

struct InfoBar {
    std::string terrain;  // empty before the first click of a battle
    std::string turn;
    std::string time;  // hours x 100 + minutes
};

// The texts for the cell that bears the cursor.
InfoBar DescribeInfoBar(const Game& game);

}  // namespace varnstride
