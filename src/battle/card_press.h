// What event cards do to the army in play at the moment when the player presses the picture. The
// table of cards in event_card_table.cpp names them.
#pragma once

#include "model/game.h"

namespace varnstride {

void GainCommandPoint(Game& game);
void LoseCommandPoint(Game& game);
void LoseTwoCommandPoints(Game& game);

// The first unit that is more than a turn away comes a turn sooner.
void HastenReinforcement(Game& game);

// A new unit at the edge of the map, where the army has a place for it.
void CallUpMilitia(Game& game);

// These units have no Action Points this turn: the best; all but guns and the routed; all foot,
// which does not attack either.
void HoldBestUnits(Game& game);
void WatchAndWait(Game& game);
void HoldFoot(Game& game);

// Effects that last until the end of the player turn.
void ChangeStrikes(Game& game);
void SteadyNerves(Game& game);
void HaltBeforeContact(Game& game);
void KeepAlliesApart(Game& game);
void AvoidCloseGround(Game& game);
void FightInTheStreets(Game& game);  // tactical card 3, unpaid

}  // namespace varnstride
