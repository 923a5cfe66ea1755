// The units whose portrait goes by their name, battlefield by battlefield: army, arm and the exact
// spelling. A scenario that spells one otherwise gets the picture of the arm instead.
#pragma once

#include <span>

#include "forge/battlefield_facts.h"

namespace varnstride {

std::span<const NamedUnit> QuatreBrasUnits();
std::span<const NamedUnit> HougoumontUnits();
std::span<const NamedUnit> LignyUnits();
std::span<const NamedUnit> MontStJeanUnits();
std::span<const NamedUnit> WavreUnits();

}  // namespace varnstride
