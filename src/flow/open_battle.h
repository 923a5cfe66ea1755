// Opening scenarios and battles: the choice of a file, what is worked out again once it is read,
// and the phase that follows.
#pragma once

#include "model/game.h"

namespace varnstride {

// Lets the person pick a scenario and reads it; sets fileChosen. A bad file is named in a message
// box and changes nothing.
void ChooseScenario(Game& game);

// Prepares a chosen scenario: losses so far and Action Points.
void NewBattleSetup(Game& game);

// Lets the person pick a saved battle or turn, by the game mode, and reads it; sets fileChosen.
void LoadBattleFile(Game& game);

// The common tail of all loads: options, passwords, and the next phase.
void AfterLoad(Game& game);

// The two answers of the start screen.
void StartNewBattle(Game& game);          // ChooseScenario, NewBattleSetup, AfterLoad
void ContinueExistingBattle(Game& game);  // LoadBattleFile, AfterLoad

// File Open in the middle of a battle: a scenario takes the place of the battle in hand, which is
// given up when none is chosen and stays untouched when the file is bad. Sets fileChosen.
void OpenFromMenu(Game& game);

// Gives the battle in hand up: the state of a fresh program, but for unitLimit, mapReady and the
// options of this run, and empty armies.
void ResetForOpen(Game& game);

}  // namespace varnstride
