// How the battle stands: the morale of the armies in percent, and the victory score told from the
// side of firstPlayer.
#pragma once

#include "model/game.h"

namespace varnstride {

enum class ArmiesCounted { PresentExactlyOne, Present };

// Works out frenchMorale and alliedMorale. An army without strength at the start leaves its side's
// number: the French one as it was, the Allied one 0 when no army counts.
void RecomputeMorale(Game& game, ArmiesCounted armies);

// Sets objectivePoints and victoryScore from the losses and the objectives held.
void ComputeVictoryScore(Game& game);

// How the battle stands for the side of firstPlayer: 0 a major defeat, 1 a minor one, 2 a draw, 3 a
// minor victory, 4 a major one. The other side's level is 4 less that.
int LevelOfFirstSide(const Game& game);

enum class ArmyRout { None, FrenchRouted, AlliesRouted };
ArmyRout FindArmyRout(const GameState& state);

// An army whose morale has collapsed loses outright: forces victoryScore to an outer limit.
void ApplyArmyRoutRule(Game& game);

}  // namespace varnstride
