// The check-mark options of the menus Display and Options, and what the map can be asked to show.
#pragma once

#include "model/game.h"

namespace varnstride {

// Turns an option over and has the map drawn again.
template <int Settings::*option>
void ToggleSetting(Game& game) {
    game.settings.*option = 1 - game.settings.*option;
    game.person->Redraw(View::Map);
}
template <int GameState::*option>
void ToggleOption(Game& game) {
    game.state.*option = 1 - game.state.*option;
    game.person->Redraw(View::Map);
}

void ToggleUnitPanels(Game& game);
// Losses on the map; turned on, it asks how long they stay.
void ToggleQuickResults(Game& game);
// Music and ambient sound: turning one on turns the other off.
void ToggleMusic(Game& game);
void ToggleAmbientSound(Game& game);

void ShowNormalView(Game& game);
void ShowZoomOutView(Game& game);

// Turns a highlight of the map over; the other six go off.
void TurnFilterOver(Game& game, int GameState::*filter);
template <int GameState::*filter>
void ToggleMapFilter(Game& game) {
    TurnFilterOver(game, filter);
}
// The units beyond command range are found afresh each time.
void ToggleOutOfCommandFilter(Game& game);

// What the leader in hand commands; what the army in play sees.
void ToggleCommandRange(Game& game);
void ShowVisibleAreas(Game& game);

// The jump map; whether the screen has room for it is the window's to know.
void ToggleMiniMap(Game& game);
void ToggleMiniMapByKey(Game& game);

}  // namespace varnstride
