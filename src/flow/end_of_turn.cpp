#include "flow/end_of_turn.h"

#include <algorithm>

#include "actions/sides.h"
#include "battle/barrage.h"
#include "battle/battle_pass.h"
#include "battle/event_cards.h"
#include "battle/morale.h"
#include "battle/weather.h"
#include "flow/background_sound.h"
#include "flow/game_end.h"
#include "flow/turn_effects.h"
#include "flow/turn_order.h"
#include "flow/two_players.h"
#include "model/score.h"

namespace varnstride {
namespace {

constexpr int kRecord = 1;
constexpr int kReplay = 2;

bool ByEmail(const Game& game) {
    return game.state.gameMode != GameMode::Local;
}

void RunEndTurnMoraleOf(Game& game, bool logged) {
    const int armyInPlay = game.state.currentArmy;
    game.state.rollLogActive = logged ? 1 : 0;
    RunEndTurnMorale(game);
    game.state.rollLogActive = 0;
    game.state.currentArmy = armyInPlay;
}

void PassTurnOn(Game& game) {
    AdvanceTurnCursor(game);
    game.header.savedArmy = game.state.turnCursor;
    game.state.currentArmy = game.state.turnCursor;
}

bool CircleHasClosed(const Game& game) {
    return game.state.turnCursor == game.header.firstPlayer;
}

void ClearOrders(Game& game) {
    GameState& state = game.state;
    state.currentUnit = 0;
    state.stopClockSeconds = 0;
    game.undo.undoAvailable = 0;
    state.leavingContact = false;
    ClearCardEffects(game);
    game.turnLog.reserved = 0;
    game.person->Redraw(View::Toolbar);
}

// The weather of the hour just played, and what is heard of it.
void ChangeWeather(Game& game) {
    AdvanceWeather(game);
    if (game.settings.backgroundSound == 1) StartAmbient(game);
}

void ChangeSideInLocalPlay(Game& game) {
    game.state.turnPhase = TurnPhase::BeginSide;
    if (!CircleHasClosed(game)) return;
    ChangeWeather(game);
    RunEndTurnMoraleOf(game, false);
    StartNewGameTurn(game);
    game.state.frenchMorale = 0;
    RecomputeMorale(game, ArmiesCounted::Present);
    if (game.state.gameTurn > game.header.lastTurn) TestForEnd(game);
}

void LockMailedTurn(Game& game) {
    GameState& state = game.state;
    game.header.playByEmail = 1;
    state.turnPhase = TurnPhase::Orders;
    state.currentArmy = state.endingArmy;
    state.turnLocked = 1;
    game.turnLog.turnInProgress = 0;
    RecomputeMorale(game, ArmiesCounted::Present);
    if (state.gameTurn >= game.header.lastTurn) TestForEnd(game);
    if (game.settings.autoSave == 0) AskForSave(game);
}

void ShowEndedBattle(Game& game) {
    RecomputeMorale(game, ArmiesCounted::Present);
    ComputeVictoryScore(game);
    OpenMapForGood(game);
}

void ReplayBattles(Game& game) {
    game.header.passMode = kReplay;
    game.state.rollCursor = 0;
    RestoreWeatherCard(game);
    ReplayEffects(game);
    RunBattlePass(game);
}

void ClearLog(Game& game) {
    constexpr int kCleared = 2400;
    std::fill_n(game.turnLog.rollLog.begin(), kCleared, std::int16_t{0});
    game.state.rollCursor = 0;
}

}  // namespace

void RunEndOfTurn(Game& game) {
    GameState& state = game.state;
    state.endingArmy = state.currentArmy;
    LayAimDown(game);
    if (ByEmail(game)) TakeBeforePass(game);
    game.header.passMode = kRecord;
    state.rollCursor = 0;
    if (IsHumanArmy(game)) state.opponentMark = 1;
    RunBattlePass(game);
    if (ByEmail(game) && game.turnLog.turnInProgress == 0 && !CircleHasClosed(game)) {
        RunEndTurnMoraleOf(game, true);
    }
    if (!ByEmail(game)) PassTurnOn(game);
    ClearOrders(game);
    if (ByEmail(game)) {
        LockMailedTurn(game);
    } else {
        ChangeSideInLocalPlay(game);
    }
}

void ResumeMailedTurn(Game& game) {
    if (game.header.gameEnded == 1) {
        ShowEndedBattle(game);
        return;
    }
    const bool restores = game.settings.noReplay == 1 && HasAfterPass(game);
    if (!restores) ReplayBattles(game);
    PassTurnOn(game);
    if (restores) RestoreAfterPass(game);
    const bool newGameTurn = game.turnLog.turnInProgress == 0 && CircleHasClosed(game);
    // The sender recovered before the weather changed; what was restored has recovered already.
    if (newGameTurn && !restores) RunEndTurnMoraleOf(game, true);
    ClearCardEffects(game);
    if (newGameTurn) {
        ChangeWeather(game);
        StartNewGameTurn(game);
        RecomputeMorale(game, ArmiesCounted::Present);
    }
    ClearLog(game);
    game.header.passMode = kRecord;
    game.state.turnPhase = TurnPhase::StartTurn;
}

}  // namespace varnstride
