// The section [roads] of a scenario source and the water of the ground: feature pictures from the
// sides that a road or a stream runs through, and bridges where the two meet. The decompiler
// traces the roads of a file back into lines.
#pragma once

#include <string>

#include "forge/scenario_build.h"
#include "forge/scenario_text.h"

namespace varnstride {

// Needs the ground; a source without roads still gets its water.
void ReadRoads(const ScenarioText& text, ScenarioBuild& build);

// The roads of a file, cut where they fork; their names are lost. Defined in
// scenario_road_trace.cpp.
std::string WriteRoads(const BattleFile& file);

bool IsStreamOrRiver(const MapCell& cell);
bool IsLake(const MapCell& cell);

// The sides through which a road crosses a bridge; none for a cell without one.
unsigned BridgeSides(const MapCell& cell);

}  // namespace varnstride
