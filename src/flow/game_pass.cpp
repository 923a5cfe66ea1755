#include "flow/game_pass.h"

#include "flow/end_of_turn.h"
#include "flow/game_end.h"
#include "flow/open_battle.h"
#include "flow/start_of_turn.h"
#include "opponent/opponent_turn.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kNewBattle = 1071;
constexpr int kExistingBattle = 1498;
constexpr int kByEmail = 1633;

void BeginSide(Game& game) {
    game.state.turnPhase = TurnPhase::StartTurn;
    game.state.stopClockSeconds = 0;
    if (game.state.gameMode == GameMode::Local && game.settings.computerSide > 0) {
        AdjustAdvanceDirection(game);
    }
}

void ShowStartScreen(Game& game) {
    game.person->Redraw(View::Frame);
    Dialog screen{.templateId = kStartScreen};
    screen.AddTick(kByEmail, "Play By E-Mail", game.state.gameMode == GameMode::PlayByEmail);
    screen.AddButton(kNewBattle, "New Battle");
    screen.AddButton(kExistingBattle, "Existing Battle");
    screen.AddButton(kCancel, "Cancel");
    game.person->Ask(screen);
    game.state.gameMode = screen.IsTicked(kByEmail) ? GameMode::PlayByEmail : GameMode::Local;
    if (screen.closedBy == kNewBattle) StartNewBattle(game);
    if (screen.closedBy == kExistingBattle) ContinueExistingBattle(game);
    if (screen.closedBy == kCancel) game.state.programEnded = true;
}

int HighestPresentAlliedArmy(const Game& game) {
    for (int army = kLastPlayingArmy; army > kFrench; --army) {
        if (game.Army(army).present != 0) return army;
    }
    return kFrench;
}

// The person must not move first: he saves the set-up for the one who must.
void HandOver(Game& game) {
    GameState& state = game.state;
    state.turnLocked = 1;
    state.turnPhase = TurnPhase::Orders;
    AskForSave(game);
    if (state.gameMode == GameMode::PlayByEmail) game.header.playByEmail = 1;
    game.turnLog.turnInProgress = 0;
    state.endingArmy =
        game.header.firstPlayer == kFrench ? HighestPresentAlliedArmy(game) : kFrench;
    game.header.savedArmy = state.currentArmy;
    state.currentArmy = state.endingArmy;
}

}  // namespace

void ResetCommandPoints(Game& game) {
    game.generator.Seed(game.person->Time());
    for (int army = 0; army <= kLastPlayingArmy; ++army) {
        game.Army(army).commandPoints = game.Army(army).baseCommandPoints;
    }
    if (game.header.hardDifficulty == 1) {
        game.ArmyInPlay().commandPoints =
            static_cast<int>(game.ArmyInPlay().baseCommandPoints * 0.9);
    }
    if (game.header.gameEnded != 1) return;
    for (int army = 0; army <= kLastPlayingArmy; ++army)
        game.Army(army).commandPoints = 0;
}

void RunGamePass(Game& game) {
    switch (game.state.turnPhase) {
        case TurnPhase::Orders:
            if (game.state.mapReady != 0) game.person->Redraw(View::Map);
            break;
        case TurnPhase::BeginSide: BeginSide(game); break;
        case TurnPhase::StartTurn: RunStartOfTurn(game); break;
        case TurnPhase::EndTurn: RunEndOfTurn(game); break;
        case TurnPhase::ResumeFile: ResumeMailedTurn(game); break;
        case TurnPhase::StartScreen: ShowStartScreen(game); break;
        case TurnPhase::HandOver: HandOver(game); break;
    }
}

}  // namespace varnstride
