#include "flow/game_end.h"

#include <array>
#include <string>
#include <string_view>

#include "actions/sides.h"
#include "actions/top_bar.h"
#include "flow/game_pass.h"
#include "model/dice.h"
#include "model/score.h"
#include "resources/army_names.h"
#include "resources/dialog_ids.h"

namespace varnstride {
namespace {

constexpr int kContinueGame = 1071;

struct LevelWords {
    std::string_view level;
    std::string_view comment;
    std::string_view commentOnRout;  // instead, when an army has routed
};

// From the worst to the best.
constexpr std::array<LevelWords, 5> kLevels = {{
    {"A Major Defeat",
     "A disaster, Commander. Another defeat like this and you will not be commanding an army "
     "again.",
     "A disaster, Commander. Your army has routed from the field."},
    {"A Minor Defeat", "A poor result Commander. You need to co-ordinate your army better.", {}},
    {"A Draw", "You held the enemy, Commander. Next time you need to defeat him.", {}},
    {"A Minor Victory", "Well done Commander, now pursue the enemy and destroy him", {}},
    {"A Major Victory", "Congratulations Commander, you have won a major victory.",
     "Congratulations Commander, the enemy has routed from the field"},
}};

bool IsDraw(const Game& game) {
    return game.state.victoryScore > game.header.minorDefeatLimit &&
           game.state.victoryScore < game.header.minorVictoryLimit;
}

bool SpeaksToFirstSide(const Game& game) {
    const Side first = SideOf(game.header.firstPlayer);
    if (game.state.computerPlays == kComputerPlaysBoth) return true;
    if (game.state.computerPlays == 0) return SideOf(game.header.savedArmy) == first;
    const Side player =
        game.state.computerPlays == kComputerPlaysFrench ? Side::Allied : Side::French;
    return game.state.armyRouted == 1 || player == first;
}

Dialog GameEndDialog(const Game& game) {
    const int level = LevelOfFirstSide(game);
    const LevelWords& words =
        kLevels[static_cast<std::size_t>(SpeaksToFirstSide(game) ? level : 4 - level)];
    const bool rout = game.state.armyRouted == 1 && !words.commentOnRout.empty();
    Dialog dialog{.templateId = kGameEnd};
    dialog.AddLabel(1402, std::string(ArmyTitle(game.state.currentArmy)));
    dialog.AddLabel(1170, std::string(words.level));
    dialog.AddLabel(1171, std::string(rout ? words.commentOnRout : words.comment));
    dialog.AddButton(kOk, "OK");
    if (game.header.playByEmail == 0) dialog.AddButton(kContinueGame, "Continue Game");
    return dialog;
}

void StopTheClock(GameState& state) {
    state.stopClock5 = state.stopClock10 = state.stopClock15 = 0;
}

void ShowGameEnd(Game& game) {
    game.state.armyRouted = FindArmyRout(game.state) != ArmyRout::None ? 1 : 0;
    ApplyArmyRoutRule(game);
    Dialog dialog = GameEndDialog(game);
    game.person->Ask(dialog);
    if (dialog.closedBy == kContinueGame && game.header.playByEmail == 0) {
        game.header.gameEnded = 0;
        return;
    }
    game.header.gameEnded = 1;
    game.state.computerPlays = 0;
    StopTheClock(game.state);
}

}  // namespace

void OpenMapForGood(Game& game) {
    game.state.turnPhase = TurnPhase::Orders;
    game.header.fogNone = 1;
    game.header.fogNormal = 0;
    game.header.fogExtreme = 0;
    game.state.turnLocked = 1;
    game.turnLog.turnInProgress = 0;
}

void TestForEnd(Game& game) {
    constexpr int kGoesOn = 7;
    ComputeVictoryScore(game);
    if (IsDraw(game) && Die(game, 12) >= kGoesOn) return;
    DrawTopBar(game);
    ShowGameEnd(game);
    if (game.header.gameEnded != 1) return;
    ResetCommandPoints(game);
    OpenMapForGood(game);
}

void AskForSave(Game& game) {
    game.person->Confirm(
        {"  Play By E-Mail   End of Player Turn", "    Save Scenario before exiting the game"});
}

}  // namespace varnstride
