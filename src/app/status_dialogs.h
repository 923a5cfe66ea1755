// The dialogs of the menu Status that show how the battle stands and what it is, and the choice of
// the army whose reports are read after the end.
#pragma once

#include "model/game.h"

namespace varnstride {

// Losses, objectives, limits and the level of victory, the score made afresh.
void ShowVictory(Game& game);

// What the army in play was told before the battle, or that it was told nothing.
void ShowIntelligence(Game& game);

void ShowScenarioDescription(Game& game);
void ShowScenarioInformation(Game& game);  // clock, weather, ground
void ShowScenarioSettings(Game& game);

// Once the battle has ended: whose reports are to be shown.
void AskEndGameStatus(Game& game);

}  // namespace varnstride
