#include "app/display_options.h"

#include <array>

#include "actions/spotting.h"
#include "app/guards.h"
#include "flow/background_sound.h"
#include "flow/command_control.h"
#include "flow/map_filters.h"
#include "model/reach.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

struct Speed {
    int radio;
    int milliseconds;
    const char* label;
};

constexpr std::array<Speed, 4> kSpeeds = {{
    {1491, 3000, "Slow"},
    {1492, 2500, "Average"},
    {1493, 2000, "Fast"},
    {1494, 1600, "Very Fast"},
}};

void AskSpeedOfAction(Game& game) {
    Dialog dialog{.templateId = kSpeedOfAction, .caption = "Speed of Action"};
    for (const Speed& speed : kSpeeds) {
        dialog.AddRadio(speed.radio, speed.label, speed.milliseconds == game.state.resultPause);
    }
    dialog.AddButton(kOk, "OK");
    dialog.AddButton(kCancel, "Cancel");
    game.person->Ask(dialog);
    if (dialog.closedBy != kOk) return;
    for (const Speed& speed : kSpeeds) {
        if (dialog.IsTicked(speed.radio)) game.state.resultPause = speed.milliseconds;
    }
    game.settings.resultPauseSetting = game.state.resultPause;
}

constexpr int kNormalView = 1;
constexpr int kZoomOutView = 2;

void ShowView(Game& game, int view) {
    if (game.settings.mapView == view) return;
    game.settings.mapView = view;
    game.person->Redraw(View::Map);
    game.person->Redraw(View::CentreOnSelected);
}

// The walk over the leaders borrows what is in hand and the shade; both belong to the player's
// next order.
void FindUnitsBeyondCommand(Game& game) {
    const Grid grid = game.grid;
    const GameState state = game.state;
    MarkCommandRange(game);
    game.grid = grid;
    game.state = state;
}

void LightCommandRange(Game& game) {
    constexpr int kCommandRadius = 2;
    game.state.selectedCell = game.InHand().Place();
    ShadeReachWith(game, kCommandRadius);
}

}  // namespace

void ToggleUnitPanels(Game& game) {
    int& hidden = game.settings.hideUnitPanels;
    hidden = 1 - hidden;
    game.person->Redraw(hidden == 1 ? View::NoUnitPanels : View::UnitPanels);
}

void ToggleQuickResults(Game& game) {
    ToggleSetting<&Settings::quickResults>(game);
    if (game.settings.quickResults == 1) AskSpeedOfAction(game);
}

void ToggleMusic(Game& game) {
    int& music = game.settings.backgroundMusic;
    music = 1 - music;
    if (music == 1) game.settings.backgroundSound = 0;
    StartMusic(game);
}

void ToggleAmbientSound(Game& game) {
    int& sound = game.settings.backgroundSound;
    sound = 1 - sound;
    if (sound == 0) {
        StopAmbient(game);
        return;
    }
    game.settings.backgroundMusic = 0;
    StartAmbient(game);
}

void ShowNormalView(Game& game) {
    ShowView(game, kNormalView);
}
void ShowZoomOutView(Game& game) {
    ShowView(game, kZoomOutView);
}

void TurnFilterOver(Game& game, int GameState::*filter) {
    const int turned = 1 - game.state.*filter;
    SwitchFiltersOff(game);
    game.state.*filter = turned;
    ApplyMapFilter(game);
    game.person->Redraw(View::Map);
}

void ToggleOutOfCommandFilter(Game& game) {
    FindUnitsBeyondCommand(game);
    TurnFilterOver(game, &GameState::highlightOutOfCommand);
}

void ToggleCommandRange(Game& game) {
    if (game.state.bombardmentMode != 0) {
        Refuse(game, "Artillery Fire",
               "Unable to use 'Command Range' when conducting Artillery Barrage");
        ReleaseButtons(game);
        return;
    }
    if (game.InHand().type != UnitType::Leader) return;
    game.state.commandRangeShown = 1 - game.state.commandRangeShown;
    game.grid.LightAll();
    if (game.state.commandRangeShown == 1) LightCommandRange(game);
    game.person->Redraw(View::Map);
}

void ShowVisibleAreas(Game& game) {
    const Cell selected = game.state.selectedCell;
    const int moveCost = game.state.moveCost;
    game.grid.ShadeAll();
    SpotFromArmy(game);
    game.state.selectedCell = selected;
    game.state.moveCost = moveCost;
    game.person->Redraw(View::Map);
}

void ToggleMiniMap(Game& game) {
    if (game.state.bombardmentMode != 0) {
        ReleaseButtons(game);
    } else {
        ToggleMiniMapByKey(game);
    }
}

void ToggleMiniMapByKey(Game& game) {
    if (game.state.turnPhase != TurnPhase::Orders) return;
    ToggleOption<&GameState::miniMapShown>(game);
}

}  // namespace varnstride
