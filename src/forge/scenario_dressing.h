// The looks of a map that follow from its ground: furrowed crops under fields, rides through woods
// for roads, slopes where the ground falls. No rule reads them; [cells] may say otherwise.
#pragma once

#include "forge/scenario_build.h"

namespace varnstride {

// Needs the ground and the roads.
void DressGround(ScenarioBuild& build);

}  // namespace varnstride
