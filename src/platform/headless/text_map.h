// The battlefield as text for a terminal of 100 columns: ground as in the sources of scenarios,
// units by army and arm, two characters a hex. The demonstration prints it.
#pragma once

#include <string>

#include "model/game.h"

namespace varnstride {

// One line a row, the row's number first and odd rows half a hex to the right. A map too wide for
// that has one character a hex, and is cut off at the right-hand edge of the terminal. Units that
// are not visible are left out when someUnseen is on.
std::string DrawTextMap(const Game& game, bool someUnseen);

// What the characters mean, in lines of at most 100 columns.
std::string TextMapLegend();

// How a text names an area: by the label that stands in it, else by its ordinal.
std::string PlaceName(const Game& game, int ordinal);

}  // namespace varnstride
