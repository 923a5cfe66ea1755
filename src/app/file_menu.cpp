#include "app/file_menu.h"

#include "battle/weather.h"
#include "flow/background_sound.h"
#include "flow/open_battle.h"
#include "flow/save_battle.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

// The start of a program, but for what was learned of files and what the player has set.
void ClearState(Game& game) {
    GameState fresh;
    fresh.unitLimit = game.state.unitLimit;
    fresh.mapReady = game.state.mapReady;
    fresh.unitsOff = game.state.unitsOff;
    fresh.combatBoxTimer = game.state.combatBoxTimer;
    fresh.resultPause = game.state.resultPause;
    game.state = fresh;
    game.turnLog.turnInProgress = 0;
    game.battle = {};
    game.census = {};
    game.undo = {};
}

void TakeOffMap(Game& game, UnitId id) {
    Unit& unit = game.At(id);
    if (game.grid.Holds(unit.Place())) VacateSlot(game, id);
    unit.strength = 0;
    unit.actionPoints = 0;
    unit.SetPlace(kNoCell);
}

void ClearUnits(Game& game) {
    for (int army = 0; army < kArmyCount; ++army) {
        if (game.Army(army).present == 0) continue;
        for (int index : UnitIndices(game))
            TakeOffMap(game, {army, index});
    }
    game.grid.ClearStanding();
}

void ClearBattle(Game& game) {
    ClearState(game);
    ClearUnits(game);
    StopAmbient(game);
    game.loss = {};
    game.beforePass = {};
    game.afterPass = {};
}

void TellToSaveAs(Game& game, const char* caption) {
    game.person->Confirm({caption, "   Use 'Save As' to avoid writing over Scenario file"});
}

}  // namespace

void OpenScenario(Game& game) {
    ClearBattle(game);
    ChooseScenario(game);
    if (game.state.fileChosen == 0) {
        game.state.turnPhase = TurnPhase::StartScreen;
        return;
    }
    NewBattleSetup(game);
    AfterLoad(game);
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
