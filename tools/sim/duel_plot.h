// What many duels came to as a picture: the final scores by level, and the course of score and
// losses turn by turn.
#pragma once

#include <vector>

#include "display/surface.h"
#include "platform/headless/duel.h"

namespace varnstride::sim {

// Three charts one below the other. There is at least one duel.
Surface PlotDuels(const std::vector<DuelResult>& duels);

}  // namespace varnstride::sim
