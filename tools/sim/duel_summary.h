// What many duels of one battle come to, for whoever balances a scenario.
#pragma once

#include <ostream>
#include <vector>

#include "platform/headless/duel.h"

namespace varnstride::sim {

// How often each side won at which level, and the mean and spread of score, losses and length, as
// a table. There is at least one duel.
void PrintSummary(std::ostream& out, const std::vector<DuelResult>& duels);

// One line a game turn of each duel, below a line of headings.
void PrintCourse(std::ostream& out, const std::vector<DuelResult>& duels);

}  // namespace varnstride::sim
