// How many links of each kind a set of atlases holds, and whether the six battlefields together
// have about as many of each as the game was balanced for. A single map says nothing about that.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "forge/atlas_source.h"

namespace varnstride {

struct LinkCounts {
    int all = 0;
    int firstOpen = 0;
    int footOnly = 0;      // without a second step
    int footWithRoad = 0;  // first step on foot, second step by road
    int footOrRoad = 0;
    int secondOpen = 0;  // without a first step
    int secondRoad = 0;  // without a first step
    int viaAlone = 0;
    int secondWithoutVia = 0;
    int firstWithVia = 0;
    int viaApart = 0;   // the via has no link from the one end, or none to the other
    int withStep = 0;   // links with a first or a second step
    int differing = 0;  // those of them whose reverse has other steps, or is missing
};

LinkCounts CountLinks(std::span<const AtlasSource> atlases);

// Whether each battlefield is there, so that the counts mean something.
bool HoldsAllBattlefields(std::span<const AtlasSource> atlases);

// One line for each count that is off.
std::vector<std::string> OddLinkCounts(const LinkCounts& counts);

}  // namespace varnstride
