#include "app/file_menu.h"

#include "battle/weather.h"
#include "flow/background_sound.h"
#include "flow/open_battle.h"
#include "flow/save_battle.h"

namespace varnstride {
namespace {

void TellToSaveAs(Game& game, const char* caption) {
    game.person->Confirm({caption, "   Use 'Save As' to avoid writing over Scenario file"});
}

}  // namespace

void OpenScenario(Game& game) {
    OpenFromMenu(game);
    if (game.state.fileChosen == 0) return;
    game.state.stopClockSeconds = 0;
    if (game.state.currentArmy == game.header.firstPlayer) AdvanceWeather(game);
    if (game.settings.backgroundSound == 1) StartAmbient(game);
}

void Save(Game& game) {
    if (game.state.fileNameKnown == 1) {
        SaveBattleFile(game);
    } else {
        TellToSaveAs(game, "Help Box");
    }
}

void Exit(Game& game) {
    if (!game.person->Confirm({"Exit Message", "       OK to exit game?", BoxButtons::OkCancel})) {
        return;
    }
    game.person->Redraw(View::Frame);
    if (game.settings.autoSave == 1 && game.state.fileNameKnown == 1) SaveBattleFile(game);
    game.state.programEnded = true;
}

void AutoSaveTurn(Game& game) {
    if (game.settings.autoSave != 1) return;
    if (game.state.fileNameKnown == 1) {
        SaveBattleFile(game);
    } else {
        TellToSaveAs(game, "Help Box - For First 'Save' on Scenario");
    }
}

}  // namespace varnstride
