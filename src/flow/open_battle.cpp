#include "flow/open_battle.h"

#include <algorithm>
#include <optional>

#include "actions/sides.h"
#include "actions/top_bar.h"
#include "files/battle_file.h"
#include "flow/armies_arrived.h"
#include "flow/background_sound.h"
#include "flow/battle_options.h"
#include "flow/turn_effects.h"
#include "flow/two_players.h"
#include "model/unit_rules.h"
#include "model/units_on_map.h"

namespace varnstride {
namespace {

constexpr int kRecord = 1;
constexpr int kReplay = 2;

struct ChosenFile {
    std::string path;
    Result<BattleFile> read;
};

// Nothing when the person chose none; a file that cannot be used is told at once.
std::optional<ChosenFile> Choose(Game& game, FileKind kind) {
    game.state.fileChosen = 0;
    const std::optional<std::string> path = game.person->ChooseFile({.kind = kind});
    if (!path) return std::nullopt;
    ChosenFile chosen{*path, ReadBattleFile(*path, *game.atlases)};
    if (!chosen.read.Ok()) game.person->Confirm({" ", chosen.read.Message()});
    return chosen;
}

void TakeUp(Game& game, FileKind kind, const ChosenFile& chosen) {
    PutIntoGame(chosen.read.Get(), kind, game);
    game.filePath = chosen.path;
    game.state.fileChosen = 1;
    game.state.existingBattle = kind != FileKind::Scenario;
    game.beforePass.ofBattleInHand = false;
    game.person->Redraw(View::InfoBar);
}

void ChooseAndTakeUp(Game& game, FileKind kind) {
    const std::optional<ChosenFile> chosen = Choose(game, kind);
    if (chosen && chosen->read.Ok()) TakeUp(game, kind, *chosen);
}

bool CountsAsLoss(const Unit& unit, int army) {
    const bool cossacksLeftOut = army == kAustrian || army == kRussian;
    if (unit.type == UnitType::CossackCavalry && cossacksLeftOut) return false;
    return IsBetween(unit.type, UnitType::LightInfantry, UnitType::GuardCavalry) ||
           IsFieldGun(unit.type);
}

int StrengthLost(const Game& game, int army) {
    int lost = 0;
    for (int index = 1; index < kUnitsPerArmy; ++index) {
        const Unit& unit = game.At({army, index});
        if (CountsAsLoss(unit, army)) lost += unit.initialStrength - unit.strength;
    }
    return std::max(lost, 0);
}

// The Allied tally follows one army alone, the last of those that are present.
void WorkOutLosses(Game& game) {
    game.loss.frenchLossSP = StrengthLost(game, kFrench);
    for (int army = kRussian; army > kFrench; --army) {
        if (game.Army(army).present == 0) continue;
        game.loss.alliedLossSP = StrengthLost(game, army);
        break;
    }
}

void GiveActionPoints(Game& game) {
    for (int army = 0; army < kArmyCount; ++army) {
        if (game.Army(army).present == 0) continue;
        for (int index = 1; index < kUnitsPerArmy; ++index) {
            Unit& unit = game.At({army, index});
            if (unit.strength <= 0) continue;
            unit.actionPoints = ComputeActionPoints(unit, game.header.visibility);
        }
    }
}

void TakeUpSavedTurn(Game& game) {
    game.state.turnCursor = game.state.currentArmy = game.header.savedArmy;
    game.state.gameTurn = game.header.savedTurn;
    game.person->Redraw(View::Frame);
    game.state.mapReady = 1;
    if (IsHumanArmy(game)) game.state.opponentMark = 1;
    FindStandingUnits(game, game.state.existingBattle ? ArmiesArrived(game) : 0U);
}

// Never lowered, so that no record in use is passed over.
void RaiseUnitLimit(Game& game) {
    int& limit = game.state.unitLimit;
    for (int army = 0; army < kArmyCount; ++army) {
        if (game.Army(army).present == 0) continue;
        for (int index = 1; index < kUnitsPerArmy; ++index) {
            if (game.At({army, index}).strength > 0) limit = std::max(limit, index + 1);
        }
    }
}

void PrepareMap(Game& game) {
    for (int y = 0; y < game.grid.Height(); ++y) {
        for (int x = 0; x + 1 < game.grid.Width(); ++x)
            game.grid.At({x, y}).highlight = 0;
    }
    game.grid.LightPlayable();
    game.grid.FinishPictures();
}

bool IsNewStart(const Game& game) {
    return game.state.gameTurn == 1 && game.state.currentArmy == game.header.firstPlayer &&
           game.turnLog.turnInProgress == 0 && game.header.passMode != kReplay;
}

void BeginBattle(Game& game) {
    AskScenarioOptions(game);
    game.person->Redraw(View::Frame);
    game.header.passMode = kRecord;
}

TurnPhase NextPhase(const Game& game) {
    const bool existing = game.state.existingBattle;
    if (game.state.gameMode == GameMode::Local) {
        return existing ? TurnPhase::Orders : TurnPhase::BeginSide;
    }
    if (!existing) return TurnPhase::StartTurn;
    return game.turnLog.turnInProgress == 0 ? TurnPhase::ResumeFile : TurnPhase::Orders;
}

void LookAtMapCentre(Game& game) {
    game.state.selectedCell = {game.grid.Width() / 2, game.grid.Height() / 2};
    game.person->Redraw(View::CentreOnSelected);
    DrawTopBar(game);
}

void ResumeBattle(Game& game) {
    game.person->Redraw(View::InfoBar);
    RestartBackgroundSound(game);
    RestoreWeatherCard(game);
}

void PlayMusic(Game& game) {
    if (game.settings.backgroundMusic != 1) return;
    game.person->Stop(Sound::NapoleonicIntro);
    StartMusic(game);
}

void ClearState(Game& game) {
    GameState fresh;
    fresh.unitLimit = game.state.unitLimit;
    fresh.mapReady = game.state.mapReady;
    fresh.resultPause = game.state.resultPause;
    fresh.unitsOff = game.state.unitsOff;
    fresh.combatBoxTimer = game.state.combatBoxTimer;
    game.state = fresh;
    game.undo = {};
    game.waiting = {};
    game.census = {};
    game.battle = {};
    game.turnLog.turnInProgress = 0;
    game.options.cardInPlay = game.options.cardEffect = game.options.weatherCardCode = 0;
}

void EmptyRecord(Game& game, UnitId id) {
    Unit& unit = game.At(id);
    if (game.grid.Holds(unit.Place())) game.grid.At(unit.Place()).occupant = 0;
    unit.SetPlace(kNoCell);
    unit.previousX = unit.previousY = 0;
    unit.strength = unit.initialStrength = unit.actionPoints = 0;
}

void EmptyArmies(Game& game) {
    for (int army = 0; army < kArmyCount; ++army) {
        if (game.Army(army).present == 0) continue;
        for (int index : UnitIndices(game))
            EmptyRecord(game, {army, index});
    }
    game.grid.ClearStanding();
}

}  // namespace

void ChooseScenario(Game& game) {
    ChooseAndTakeUp(game, FileKind::Scenario);
}

void NewBattleSetup(Game& game) {
    if (game.state.fileChosen == 0) return;
    WorkOutLosses(game);
    GiveActionPoints(game);
}

void LoadBattleFile(Game& game) {
    const bool local = game.state.gameMode == GameMode::Local;
    ChooseAndTakeUp(game, local ? FileKind::Battle : FileKind::MailedTurn);
    if (game.state.fileChosen == 1) game.state.fileNameKnown = 1;
}

void AfterLoad(Game& game) {
    GameState& state = game.state;
    TakeUpSavedTurn(game);
    RaiseUnitLimit(game);
    PrepareMap(game);
    const bool newStart = IsNewStart(game);
    if (newStart && state.fileChosen == 0) return;
    if (newStart) BeginBattle(game);
    state.clockHours = game.time.clockField / 100.0;
    if (game.header.playByEmail == 1) {
        state.gameMode = GameMode::PlayByEmail;
        if (HandOverFirstTurn(game)) return;
    }
    if (state.gameMode == GameMode::PlayByEmail) CheckPasswords(game);
    state.programEnded = state.gameMode == GameMode::Quit;
    if (state.programEnded) return;
    const bool ended = game.header.gameEnded == 1;
    if (state.gameMode == GameMode::Local && !ended && !newStart) AskOptions(game);
    if (ended) state.turnLocked = 1;
    state.turnPhase = NextPhase(game);
    LookAtMapCentre(game);
    if (state.existingBattle) ResumeBattle(game);
    PlayMusic(game);
    if (state.existingBattle) TakeTurnTag(game);
}

void StartNewBattle(Game& game) {
    ChooseScenario(game);
    if (game.state.fileChosen == 0) return;
    NewBattleSetup(game);
    AfterLoad(game);
}

void ContinueExistingBattle(Game& game) {
    LoadBattleFile(game);
    if (game.state.fileChosen == 1) AfterLoad(game);
}

void OpenFromMenu(Game& game) {
    const std::optional<ChosenFile> chosen = Choose(game, FileKind::Scenario);
    if (chosen && !chosen->read.Ok()) return;
    ResetForOpen(game);
    if (!chosen) return;
    TakeUp(game, FileKind::Scenario, *chosen);
    NewBattleSetup(game);
    AfterLoad(game);
}

void ResetForOpen(Game& game) {
    ClearState(game);
    EmptyArmies(game);
    StopAmbient(game);
    game.loss = {};
    game.beforePass.ofBattleInHand = false;
}

}  // namespace varnstride
