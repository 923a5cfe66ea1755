// The sentences of the narration: one unit's change, an attack, how the battle stands.
#pragma once

#include <string>
#include <vector>

#include "model/attack_report.h"
#include "model/game.h"

namespace varnstride::demo {

// What the battle is, as it opens.
std::vector<std::string> TellBattle(const Game& game);

// What has become of a unit since it was so; nothing when nothing worth telling has.
std::vector<std::string> TellUnit(const Game& game, UnitId id, const Unit& was);

std::vector<std::string> TellAttack(const AttackReport& report);

// Losses, score and the morale of both sides.
std::string TellStanding(const Game& game);

}  // namespace varnstride::demo
